#include "reports/InvoiceScript.h"

#include "billing/Sub.h"
#include "output/PB.h"
#include "platform/print/PrinterSurface.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/Text.h"
#include "store/FieldValue.h"
#include "values/Dates.h"
#include "values/NumStr.h"
#include "values/Text.h"

namespace akarix {

namespace {

// In twips on the paper. Figures of the left block stand in ruled boxes, full-width signs in six places.
constexpr int kMeterX = 1050;
constexpr int kAmountX = 1280;
constexpr int kListTop = 1460;
constexpr int kListPitch = 500;
constexpr int kListDateX = 3300;
constexpr int kListNameX = 4200;
constexpr int kListAmountX = 7860;

void AddFree(int x, int y, const QString& text) {
    PBAddLine(u"<FREE>%1,%2,"_s.arg(x).arg(y) + text);
}

QString SixPlaces(const Variant& value) {
    return PadFormat(value, u"######"_s);
}

QString SixBoxes(const Variant& value) {
    return StrConv(SixPlaces(value), WideChars);
}

QString TwoDigits(int number) {
    return Format(number, u"00"_s);
}

void AddDate(Date issued) {
    // The paper has the era's name printed on it.
    AddFree(1000, 0, TwoDigits(Year(issued) - kEraBase));
    AddFree(1700, 0, TwoDigits(Month(issued)));
    AddFree(2400, 0, TwoDigits(Day(issued)));
}

void AddReading(const InvoiceReading& reading) {
    AddFree(kMeterX, 1460, SixBoxes(reading.konkaiMeter));
    AddFree(kMeterX, 1960, SixBoxes(reading.exchanged() ? reading.koukanGoMeter : reading.zenkaiMeter));
    AddFree(kMeterX, 2460, SixBoxes(reading.suu));
    AddFree(kAmountX, 2960, SixBoxes(reading.gaku));
}

void AddList(const InvoiceMonth& invoice, const InvoiceReading& reading, Currency zenkaiGaku) {
    int y = kListTop;
    const auto add = [&y](const QString& name, const QString& amount) {
        AddFree(kListNameX, y, name);
        AddFree(kListAmountX, y, amount);
        y += kListPitch;
    };
    if (zenkaiGaku > Currency(0)) add(u"前月繰越"_s, SixPlaces(zenkaiGaku));
    if (reading.exchanged())
        add(u"メータ交換までの使用量"_s, NumStr(reading.koukanMeter - reading.zenkaiMeter));
    for (const InvoiceLine& line : ReadInvoiceLines(invoice)) {
        AddFree(kListDateX, y, Format(line.hizuke, u"MM DD"_s));
        add(line.name, SixPlaces(line.gaku));
    }
}

void AddMarks() {
    PBAddLine(u"<SIZE>9"_s);
    for (const int x : {1690, 3260, 4800, 6430})
        for (const int y : {4360, 4840})
            AddFree(x, y, u"○"_s);
}

}  // namespace

void AddInvoiceAccount(const InvoiceMonth& invoice, const InvoiceReading& reading, Currency zenkaiGaku) {
    AddList(invoice, reading, zenkaiGaku);
    if (reading.konkaiMeter > Currency(0)) {
        if (const auto ledger = ReadInvoiceLedger(invoice))
            AddFree(kAmountX, 3860, SixBoxes(ledger->gaku + zenkaiGaku));
    }
    AddMarks();
}

void DrawInvoice(const InvoiceMonth& invoice, Date issued) {
    if (IsNoInvoice(invoice.deal)) return;
    PBInit();
    PBAddLine(u"<FONT>ＭＳ 明朝"_s);
    PBAddLine(u"<SIZE>12"_s);
    AddDate(issued);

    Recordset customer = OpenInvoiceCustomer(invoice.deal);
    if (customer.Eof()) return;
    AddFree(500, 460, NumStr(invoice.deal));
    AddFree(1600, 460, NullToEmpty(customer[u"Namae"_s]));
    AddFree(360, 920, NullToEmpty(customer[u"Addr1"_s]) + NullToEmpty(customer[u"Addr2"_s]));
    customer.Close();

    const InvoiceReading reading = ReadInvoiceReading(invoice);
    if (reading.found) AddReading(reading);

    Recordset sales = OpenSalesSum(invoice);
    AddFree(kAmountX, 3460, SixBoxes(sales[u"tGaku"_s]));
    sales.Close();
    // The balance is asked of the set that has just been closed, which the store refuses with 3420: the run
    // ends here, in the screen's trap, before anything goes to the printer. The order is kept as dealers know
    // it; invoices are issued through the template.
    const Currency zenkaiGaku = MoneyOf(sales[u"ZenkaiGaku"_s]);

    AddInvoiceAccount(invoice, reading, zenkaiGaku);
    PBRun();
    PrinterSurface::Current().EndDoc();
}

}  // namespace akarix
