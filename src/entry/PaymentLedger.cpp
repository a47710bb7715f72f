#include "entry/PaymentLedger.h"

#include "billing/Tto.h"
#include "platform/runtime/CInt.h"
#include "store/CustomerMonth.h"
#include "store/FieldValue.h"
#include "store/Lookup.h"
#include "store/TextToField.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"
#include "values/Text.h"

namespace akarix {

namespace {

struct BillingMonth {
    int Nendo = 0;
    int Getudo = 0;
};

BillingMonth monthOf(std::int32_t deal, Date hizuke) {
    BillingMonth month;
    DateToGetudo(deal, hizuke, month.Nendo, month.Getudo);
    return month;
}

Currency paidIn(std::int32_t deal, BillingMonth month) {
    return moneyOf(FirstValue(QStringLiteral("SELECT SUM(Gaku) AS tNGaku FROM Dny ") +
                                  OfCustomerMonth(deal, month.Nendo, month.Getudo),
                              QStringLiteral("tNGaku")));
}

void writeLines(const PaymentSlip& slip, BillingMonth month) {
    const QString ofSlip = QStringLiteral(" FROM Dny WHERE Dno=") + NumStr(slip.Dno) +
                           QStringLiteral(" AND Deal=") + NumStr(slip.Deal);
    gDb->Execute(QStringLiteral("DELETE *") + ofSlip);
    Recordset rows =
        gDb->OpenRecordset(QStringLiteral("SELECT *") + ofSlip + QStringLiteral(" ORDER BY Eda"));
    std::int16_t eda = 0;
    for (const PaymentLine& line : slip.lines) {
        ++eda;
        if (line.Gaku.IsZero()) continue;
        rows.FindFirst(QStringLiteral("Eda=") + NumStr(eda));
        if (rows.NoMatch()) {
            rows.AddNew();
        } else {
            rows.Edit();
        }
        rows.Fields(QStringLiteral("Deal")) = slip.Deal;
        rows.Fields(QStringLiteral("Nendo")) = month.Nendo;
        rows.Fields(QStringLiteral("Dno")) = slip.Dno;
        rows.Fields(QStringLiteral("Eda")) = eda;
        rows.Fields(QStringLiteral("Getudo")) = month.Getudo;
        rows.Fields(QStringLiteral("Hizuke")) = slip.Hizuke;
        rows.Fields(QStringLiteral("Gaku")) = line.Gaku;
        Field& naiyo = rows.Fields(QStringLiteral("Naiyo"));
        Variant text;
        TextToField(text, naiyo, line.Naiyo);
        naiyo = text;
        rows.Fields(QStringLiteral("Kubun")) = line.Kubun;
        rows.Update();
    }
    rows.Close();
}

void writeLedger(std::int32_t deal, BillingMonth month) {
    const Currency paid = paidIn(deal, month);
    const Currency prior = moneyOf(PriorBalance(deal, month.Nendo, month.Getudo));
    Recordset row = gDb->OpenRecordset(QStringLiteral("SELECT * FROM TtoD ") +
                                       OfCustomerMonth(deal, month.Nendo, month.Getudo));
    if (row.Eof()) {
        row.AddNew();
        row.Fields(QStringLiteral("Deal")) = deal;
        row.Fields(QStringLiteral("Nendo")) = month.Nendo;
        row.Fields(QStringLiteral("Getudo")) = month.Getudo;
        row.Fields(QStringLiteral("ZenkaiGaku")) = prior;
        for (const char16_t* none : {u"GGaku", u"UGaku", u"Gaku"}) {
            row.Fields(QString::fromUtf16(none)) = Currency();
        }
    } else {
        row.Edit();
    }
    row.Fields(QStringLiteral("NGaku")) = paid;
    row.Update();
    row.Close();
}

}  // namespace

LedgerMonth SavePayment(const PaymentSlip& slip) {
    const BillingMonth month = monthOf(slip.Deal, slip.Hizuke);
    writeLines(slip, month);
    writeLedger(slip.Deal, month);
    return {CInt(month.Nendo), CInt(month.Getudo)};
}

void DeletePayment(std::int32_t dno, std::int32_t deal, Date hizuke) {
    const BillingMonth month = monthOf(deal, hizuke);
    gDb->Execute(QStringLiteral("DELETE FROM Dny WHERE Dno=") + NumStr(dno));
    gDb->Execute(QStringLiteral("UPDATE TtoD SET NGaku=") + NumStr(paidIn(deal, month)) +
                 OfCustomerMonth(deal, month.Nendo, month.Getudo));
}

PaymentSlip LoadPayment(std::int32_t dno) {
    PaymentSlip slip;
    Recordset rows = gDb->OpenRecordset(QStringLiteral("SELECT * FROM Dny WHERE Dno=") + NumStr(dno) +
                                        QStringLiteral(" ORDER BY Eda"));
    if (rows.Eof()) return slip;
    slip.Dno = dno;
    slip.Deal = longOf(rows[QStringLiteral("Deal")]);
    slip.Hizuke = dateOf(rows[QStringLiteral("Hizuke")]);
    for (PaymentLine& line : slip.lines) {
        if (rows.Eof()) break;
        line = {integerOf(rows[QStringLiteral("Kubun")]), moneyOf(rows[QStringLiteral("Gaku")]),
                NullToEmpty(rows[QStringLiteral("Naiyo")])};
        rows.MoveNext();
    }
    rows.Close();
    return slip;
}

}  // namespace akarix
