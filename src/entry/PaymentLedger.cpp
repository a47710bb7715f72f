#include "entry/PaymentLedger.h"

#include "billing/Tto.h"
#include "platform/runtime/Literals.h"
#include "store/FieldValue.h"
#include "store/Lookup.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"
#include "values/Text.h"

namespace akarix {

namespace {

Currency PaidIn(std::int32_t deal, BillingMonth month) {
    return MoneyOf(
        FirstValue(u"SELECT SUM(Gaku) AS tNGaku FROM Dny "_s + OfCustomerMonth(deal, month), u"tNGaku"_s));
}

void WriteLines(const PaymentSlip& slip, BillingMonth month) {
    const QString ofSlip = u" FROM Dny WHERE Dno="_s + NumStr(slip.Dno) + u" AND Deal="_s + NumStr(slip.Deal);
    gDb->Execute(u"DELETE *"_s + ofSlip);
    Recordset rows = gDb->OpenRecordset(u"SELECT *"_s + ofSlip + u" ORDER BY Eda"_s);
    std::int16_t eda = 0;
    for (const PaymentLine& line : slip.lines) {
        ++eda;
        if (line.Gaku.IsZero()) continue;
        rows.FindFirst(u"Eda="_s + NumStr(eda));
        if (rows.NoMatch())
            rows.AddNew();
        else
            rows.Edit();
        rows.Fields(u"Deal"_s) = slip.Deal;
        rows.Fields(u"Nendo"_s) = month.nendo;
        rows.Fields(u"Dno"_s) = slip.Dno;
        rows.Fields(u"Eda"_s) = eda;
        rows.Fields(u"Getudo"_s) = month.getudo;
        rows.Fields(u"Hizuke"_s) = slip.Hizuke;
        rows.Fields(u"Gaku"_s) = line.Gaku;
        Field& naiyo = rows.Fields(u"Naiyo"_s);
        naiyo = CutBytes(EmptyToBlank(line.Naiyo), naiyo.Size());
        rows.Fields(u"Kubun"_s) = line.Kubun;
        rows.Update();
    }
    rows.Close();
}

void WriteLedger(std::int32_t deal, BillingMonth month) {
    const Currency paid = PaidIn(deal, month);
    const Currency prior = MoneyOf(PriorBalance(deal, month));
    Recordset row = gDb->OpenRecordset(u"SELECT * FROM TtoD "_s + OfCustomerMonth(deal, month));
    if (row.Eof()) {
        row.AddNew();
        row.Fields(u"Deal"_s) = deal;
        row.Fields(u"Nendo"_s) = month.nendo;
        row.Fields(u"Getudo"_s) = month.getudo;
        row.Fields(u"ZenkaiGaku"_s) = prior;
        for (const char16_t* none : {u"GGaku", u"UGaku", u"Gaku"})
            row.Fields(QString::fromUtf16(none)) = Currency();
    } else {
        row.Edit();
    }
    row.Fields(u"NGaku"_s) = paid;
    row.Update();
    row.Close();
}

}  // namespace

BillingMonth SavePayment(const PaymentSlip& slip) {
    const BillingMonth month = DateToGetudo(slip.Deal, slip.Hizuke);
    WriteLines(slip, month);
    WriteLedger(slip.Deal, month);
    return month;
}

void DeletePayment(std::int32_t dno, std::int32_t deal, Date hizuke) {
    const BillingMonth month = DateToGetudo(deal, hizuke);
    gDb->Execute(u"DELETE FROM Dny WHERE Dno="_s + NumStr(dno));
    gDb->Execute(u"UPDATE TtoD SET NGaku="_s + NumStr(PaidIn(deal, month)) + OfCustomerMonth(deal, month));
}

PaymentSlip LoadPayment(std::int32_t dno) {
    PaymentSlip slip;
    Recordset rows = gDb->OpenRecordset(u"SELECT * FROM Dny WHERE Dno="_s + NumStr(dno) + u" ORDER BY Eda"_s);
    if (rows.Eof()) return slip;
    slip.Dno = dno;
    slip.Deal = LongOf(rows[u"Deal"_s]);
    slip.Hizuke = DateOf(rows[u"Hizuke"_s]);
    for (PaymentLine& line : slip.lines) {
        if (rows.Eof()) break;
        line = {IntegerOf(rows[u"Kubun"_s]), MoneyOf(rows[u"Gaku"_s]), NullToEmpty(rows[u"Naiyo"_s])};
        rows.MoveNext();
    }
    rows.Close();
    return slip;
}

}  // namespace akarix
