#include "debit/DebitRequest.h"

#include "debit/DebitQuery.h"
#include "debit/DebitRecords.h"
#include "dialogs/ShowAlert.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Files.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/Text.h"
#include "store/Consignor.h"
#include "values/NumStr.h"

namespace akarix {

bool IsComplete(const Consignor& consignor) {
    for (const QString* needed :
         {&consignor.ItakuCode, &consignor.Itakusya, &consignor.fName, &consignor.Bnk, &consignor.Stn})
        if (Trim(*needed).isEmpty()) return false;
    return true;
}

DebitTotals WriteRequest(const QString& path, Recordset rows, const RequestKind& kind,
                         const ShowProgress& progress) {
    Open(path, OpenMode::Output, kDebitFile);
    Print(kDebitFile, kind.header);
    rows.MoveLast();
    const std::int16_t count = CInt(rows.RecordCount());
    rows.MoveFirst();
    const QString ofAll = u" / "_s + NumStr(count);
    DebitTotals totals;
    while (totals.count < count) {
        ++totals.count;
        progress(NumStr(totals.count) + ofAll);
        const DebitRow row = ReadDebitRow(rows);
        const Currency amount = DebitAmount(row.tGaku, row.DiscGaku);
        Print(kDebitFile, kind.data(row, amount));
        totals.total += kind.counted(rows, amount);
        rows.MoveNext();
    }
    Print(kDebitFile, kind.trailer(totals.count, totals.total));
    Print(kDebitFile, DebitEnd());
    rows.Close();
    Close(kDebitFile);
    return totals;
}

void TellRequestDone(const DebitTotals& totals, const QString& done) {
    ShowAlert(u"件数："_s + NumStr(totals.count) + u'\r' + u"金額："_s + NumStr(totals.total));
    ShowAlert(done);
}

}  // namespace akarix
