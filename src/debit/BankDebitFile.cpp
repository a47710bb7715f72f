#include "debit/BankDebitFile.h"

#include "debit/DebitPath.h"
#include "debit/DebitQuery.h"
#include "debit/DebitRecords.h"
#include "debit/TotalSheet.h"
#include "debit/TrapDebit.h"
#include "dialogs/AskConfirm.h"
#include "dialogs/ShowAlert.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Literals.h"
#include "store/Consignor.h"
#include "store/FieldValue.h"
#include "store/dbAccess.h"
#include "values/NumVal.h"

namespace akarix {

namespace {

/// \param consignor its fName is the bare name
void Write(const DebitWish& wish, int bank, const Consignor& consignor, const ShowProgress& progress) {
    if (!IsComplete(consignor)) {
        ShowAlert(u"銀行の委託者が登録されていません。"_s);
        return;
    }
    const Consignor fitted = FitBankConsignor(consignor);
    Recordset rows = gDb->OpenRecordset(DebitQuery(bank, wish.month));
    if (rows.Eof()) {
        rows.Close();
        ShowAlert(u"該当が有りません。"_s);
        return;
    }
    // Banks take the disk alone: whatever folder stands in front of the name, the file goes to the floppy.
    const DebitTotals totals = WriteRequest(FloppyFolder() + consignor.fName, std::move(rows),
                                            BankRequest(fitted, wish.creation), progress);
    PrintBankTotalSheet(fitted, totals);
    TellRequestDone(totals, u"銀行ディスク作成、完了しました。"_s);
    progress({});
}

}  // namespace

RequestKind BankRequest(const Consignor& consignor, Date creation) {
    return {
        BankHeader(consignor, creation),
        BankData,
        // The bill, not what is debited of it. The monthly query does not deliver it, so the run ends at its
        // first row in 3265 rather than send a bank a total that nobody has settled.
        [](const Recordset& row, Currency) { return MoneyOf(row[u"Seikyu"_s]); },
        BankTrailer,
    };
}

void WriteBankDebit(const DebitWish& wish, const QString& bankCode, const ShowProgress& progress) {
    if (!AskConfirm(u"銀行ディスクを作成しますか？"_s, u"はい"_s, u"いいえ"_s)) return;
    progress(u"ディスク作成中！"_s);
    const std::int16_t bank = CInt(KeepNumeric(bankCode));
    Consignor consignor = LoadBankConsignor(bank);
    consignor.fName = PrepareDebitPath(consignor.fName).name;
    TrapDebit([&] { Write(wish, bank, consignor, progress); });
}

}  // namespace akarix
