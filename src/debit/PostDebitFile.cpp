#include "debit/PostDebitFile.h"

#include "debit/DebitPath.h"
#include "debit/DebitQuery.h"
#include "debit/TotalSheet.h"
#include "debit/TrapDebit.h"
#include "dialogs/AskConfirm.h"
#include "dialogs/ShowAlert.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"
#include "store/dbAccess.h"
#include "values/Dates.h"
#include "values/NumStr.h"

namespace akarix {

namespace {

bool Ask(const QString& question) {
    return AskConfirm(question, u"はい"_s, u"いいえ"_s);
}

RetransferDay DayOf(const QString& typed) {
    constexpr int kTypeMismatch = 13;
    const Date date = ParseDate(typed);
    if (!IsDateSet(date)) throw RuntimeError(kTypeMismatch);
    const QString twoDigits = u"00"_s;
    return {PadFormat(Month(date), twoDigits), PadFormat(Day(date), twoDigits)};
}

void Write(const DebitWish& wish, const DebitPath& path, const Consignor& consignor, RetransferDay& again,
           const QString& typed, const ShowProgress& progress) {
    if (!IsComplete(consignor)) {
        ShowAlert(u"郵便局の委託者が登録されていません。"_s);
        return;
    }
    const Consignor fitted = FitPostConsignor(consignor);
    if (!typed.isEmpty()) {
        if (!Ask(u"再振替日の月日はいいですか？"_s)) return;
        again = DayOf(typed);
    }
    Recordset rows = gDb->OpenRecordset(DebitQuery(kPostOffice, wish.month));
    if (rows.Eof()) {
        rows.Close();
        ShowAlert(u"該当が有りません。"_s);
        return;
    }
    const DebitTotals totals =
        WriteRequest(path.whole(), std::move(rows), PostRequest(fitted, wish.creation, again), progress);
    PrintPostTotalSheet(fitted, totals, typed);
    TellRequestDone(totals, u"郵便ディスク作成、完了しました。"_s);
    progress({});
}

}  // namespace

RequestKind PostRequest(const Consignor& consignor, Date creation, const RetransferDay& again) {
    return {
        PostHeader(consignor, creation, again),
        [consignor](const DebitRow& row, Currency amount) { return PostData(row, consignor, amount); },
        [](const Recordset&, Currency amount) { return amount; },
        PostTrailer,
    };
}

void WritePostDebit(const DebitWish& wish, RetransferDay& again, const QString& typed,
                    const ShowProgress& progress) {
    if (!Ask(u"郵便局ディスクを作成しますか？"_s)) return;
    progress(u"ディスク作成中！"_s);
    Consignor consignor = LoadPostConsignor();
    const DebitPath path = PrepareDebitPath(consignor.fName);
    consignor.fName = path.name;
    TrapDebit([&] { Write(wish, path, consignor, again, typed, progress); });
}

}  // namespace akarix
