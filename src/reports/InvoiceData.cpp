#include "reports/InvoiceData.h"

#include "store/CustomerMonth.h"
#include "store/FieldValue.h"
#include "store/Lookup.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"
#include "values/Text.h"

namespace akarix {

namespace {

Recordset openMonth(const QString& select, const InvoiceMonth& invoice, const QString& order = {}) {
    return gDb->OpenRecordset(select + OfCustomerMonth(invoice.deal, invoice.year, invoice.month) + order);
}

}  // namespace

InvoiceReading ReadInvoiceReading(const InvoiceMonth& invoice) {
    InvoiceReading reading;
    Recordset set = openMonth(QStringLiteral("SELECT * FROM Dgd "), invoice);
    if (!set.Eof()) {
        reading.found = true;
        reading.zenkaiMeter = moneyOf(set[QStringLiteral("ZenkaiMeter")]);
        reading.koukanMeter = moneyOf(set[QStringLiteral("KoukanMeter")]);
        reading.koukanGoMeter = moneyOf(set[QStringLiteral("KoukanGoMeter")]);
        reading.konkaiMeter = moneyOf(set[QStringLiteral("KonkaiMeter")]);
        reading.suu = moneyOf(set[QStringLiteral("Suu")]);
        reading.gaku = moneyOf(set[QStringLiteral("Gaku")]);
        reading.day = ReadingDay(set);
    }
    set.Close();
    return reading;
}

std::vector<InvoiceLine> ReadInvoiceLines(const InvoiceMonth& invoice) {
    std::vector<InvoiceLine> lines;
    Recordset set =
        openMonth(QStringLiteral("SELECT * FROM Dud "), invoice, QStringLiteral(" ORDER BY Dno,Eda"));
    for (; !set.Eof(); set.MoveNext()) {
        lines.push_back({set[QStringLiteral("Hizuke")], NullToEmpty(set[QStringLiteral("HinNamae")]),
                         moneyOf(set[QStringLiteral("Suu")]), moneyOf(set[QStringLiteral("Tanka")]),
                         moneyOf(set[QStringLiteral("Gaku")])});
    }
    set.Close();
    return lines;
}

std::optional<InvoiceLedger> ReadInvoiceLedger(const InvoiceMonth& invoice) {
    std::optional<InvoiceLedger> ledger;
    Recordset set = openMonth(QStringLiteral("SELECT * FROM TtoD "), invoice);
    if (!set.Eof()) {
        ledger = {moneyOf(set[QStringLiteral("ZenkaiGaku")]), moneyOf(set[QStringLiteral("Gaku")]),
                  moneyOf(set[QStringLiteral("NGaku")])};
    }
    set.Close();
    return ledger;
}

Recordset OpenSalesSum(const InvoiceMonth& invoice) {
    return openMonth(QStringLiteral("SELECT SUM(Gaku) AS tGaku  FROM  Dud "), invoice);
}

Recordset OpenInvoiceCustomer(std::int32_t deal) {
    return gDb->OpenRecordset(QStringLiteral("SELECT * FROM Deal WHERE Code=") + NumStr(deal));
}

}  // namespace akarix
