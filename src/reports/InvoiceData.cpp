#include "reports/InvoiceData.h"

#include "platform/runtime/Literals.h"
#include "store/FieldValue.h"
#include "store/Lookup.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"
#include "values/Text.h"

namespace akarix {

namespace {

Recordset OpenMonth(const QString& select, const InvoiceMonth& invoice, const QString& order = {}) {
    return gDb->OpenRecordset(select + OfCustomerMonth(invoice.deal, invoice.month) + order);
}

}  // namespace

InvoiceReading ReadInvoiceReading(const InvoiceMonth& invoice) {
    InvoiceReading reading;
    Recordset set = OpenMonth(u"SELECT * FROM Dgd "_s, invoice);
    if (!set.Eof()) {
        reading.found = true;
        reading.zenkaiMeter = MoneyOf(set[u"ZenkaiMeter"_s]);
        reading.koukanMeter = MoneyOf(set[u"KoukanMeter"_s]);
        reading.koukanGoMeter = MoneyOf(set[u"KoukanGoMeter"_s]);
        reading.konkaiMeter = MoneyOf(set[u"KonkaiMeter"_s]);
        reading.suu = MoneyOf(set[u"Suu"_s]);
        reading.gaku = MoneyOf(set[u"Gaku"_s]);
        reading.day = ReadingDay(set);
    }
    set.Close();
    return reading;
}

std::vector<InvoiceLine> ReadInvoiceLines(const InvoiceMonth& invoice) {
    std::vector<InvoiceLine> lines;
    Recordset set = OpenMonth(u"SELECT * FROM Dud "_s, invoice, u" ORDER BY Dno,Eda"_s);
    for (; !set.Eof(); set.MoveNext()) {
        lines.push_back({set[u"Hizuke"_s], NullToEmpty(set[u"HinNamae"_s]), MoneyOf(set[u"Suu"_s]),
                         MoneyOf(set[u"Tanka"_s]), MoneyOf(set[u"Gaku"_s])});
    }
    set.Close();
    return lines;
}

std::optional<InvoiceLedger> ReadInvoiceLedger(const InvoiceMonth& invoice) {
    std::optional<InvoiceLedger> ledger;
    Recordset set = OpenMonth(u"SELECT * FROM TtoD "_s, invoice);
    if (!set.Eof())
        ledger = {MoneyOf(set[u"ZenkaiGaku"_s]), MoneyOf(set[u"Gaku"_s]), MoneyOf(set[u"NGaku"_s])};
    set.Close();
    return ledger;
}

Recordset OpenSalesSum(const InvoiceMonth& invoice) {
    return OpenMonth(u"SELECT SUM(Gaku) AS tGaku  FROM  Dud "_s, invoice);
}

Recordset OpenInvoiceCustomer(std::int32_t deal) {
    return gDb->OpenRecordset(u"SELECT * FROM Deal WHERE Code="_s + NumStr(deal));
}

}  // namespace akarix
