#include "debit/PostDebitFile.h"

#include "debit/DebitPath.h"
#include "debit/DebitQuery.h"
#include "debit/TotalSheet.h"
#include "debit/TrapDebit.h"
#include "dialogs/AskConfirm.h"
#include "dialogs/ShowAlert.h"
#include "platform/runtime/DatePart.h"
#include "platform/runtime/RuntimeError.h"
#include "store/dbAccess.h"
#include "values/Dates.h"
#include "values/NumStr.h"

namespace akarix {

namespace {

bool ask(const QString& question) {
    return AskConfirm(question, QStringLiteral("はい"), QStringLiteral("いいえ"));
}

RetransferDay dayOf(const QString& typed) {
    constexpr int kTypeMismatch = 13;
    const Date date = ParseDate(typed);
    if (!IsDateSet(date)) throw RuntimeError(kTypeMismatch);
    const QString twoDigits = QStringLiteral("00");
    return {PadFormat(Month(date), twoDigits), PadFormat(Day(date), twoDigits)};
}

void write(const DebitWish& wish, const DebitPath& path, const Consignor& consignor, RetransferDay& again,
           const QString& typed, const ShowProgress& progress) {
    if (!IsComplete(consignor)) {
        ShowAlert(QStringLiteral("郵便局の委託者が登録されていません。"));
        return;
    }
    const Consignor fitted = FitPostConsignor(consignor);
    if (!typed.isEmpty()) {
        if (!ask(QStringLiteral("再振替日の月日はいいですか？"))) return;
        again = dayOf(typed);
    }
    Recordset rows = gDb->OpenRecordset(DebitQuery(kPostOffice, wish.nendo, wish.getudo));
    if (rows.Eof()) {
        rows.Close();
        ShowAlert(QStringLiteral("該当が有りません。"));
        return;
    }
    const DebitTotals totals =
        WriteRequest(path.whole(), std::move(rows), PostRequest(fitted, wish.creation, again), progress);
    PrintPostTotalSheet(fitted, totals, typed);
    TellRequestDone(totals, QStringLiteral("郵便ディスク作成、完了しました。"));
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
    if (!ask(QStringLiteral("郵便局ディスクを作成しますか？"))) return;
    progress(QStringLiteral("ディスク作成中！"));
    Consignor consignor;
    LoadPostConsignor(consignor);
    const DebitPath path = PrepareDebitPath(consignor.fName);
    consignor.fName = path.name;
    TrapDebit([&] { write(wish, path, consignor, again, typed, progress); });
}

}  // namespace akarix
