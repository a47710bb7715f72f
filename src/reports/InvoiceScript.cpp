#include "reports/InvoiceScript.h"

#include "billing/Sub.h"
#include "output/PB.h"
#include "platform/print/PrinterSurface.h"
#include "platform/runtime/DatePart.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/StrConv.h"
#include "store/FieldValue.h"
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

constexpr int kEraBase = 1988;  // the paper has the era's name printed on it

void addFree(int x, int y, const QString& text) {
    PBAddLine(QStringLiteral("<FREE>%1,%2,").arg(x).arg(y) + text);
}

QString sixPlaces(const Variant& value) {
    return PadFormat(value, QStringLiteral("######"));
}

QString sixBoxes(const Variant& value) {
    return StrConv(sixPlaces(value), WideChars);
}

QString twoDigits(int number) {
    return Format(number, QStringLiteral("00"));
}

void addDate(Date issued) {
    addFree(1000, 0, twoDigits(Year(issued) - kEraBase));
    addFree(1700, 0, twoDigits(Month(issued)));
    addFree(2400, 0, twoDigits(Day(issued)));
}

void addReading(const InvoiceReading& reading) {
    addFree(kMeterX, 1460, sixBoxes(reading.konkaiMeter));
    addFree(kMeterX, 1960, sixBoxes(reading.exchanged() ? reading.koukanGoMeter : reading.zenkaiMeter));
    addFree(kMeterX, 2460, sixBoxes(reading.suu));
    addFree(kAmountX, 2960, sixBoxes(reading.gaku));
}

void addList(const InvoiceMonth& invoice, const InvoiceReading& reading, Currency zenkaiGaku) {
    int y = kListTop;
    const auto add = [&y](const QString& name, const QString& amount) {
        addFree(kListNameX, y, name);
        addFree(kListAmountX, y, amount);
        y += kListPitch;
    };
    if (zenkaiGaku > Currency(0)) add(QStringLiteral("前月繰越"), sixPlaces(zenkaiGaku));
    if (reading.exchanged()) {
        add(QStringLiteral("メータ交換までの使用量"), NumStr(reading.koukanMeter - reading.zenkaiMeter));
    }
    for (const InvoiceLine& line : ReadInvoiceLines(invoice)) {
        addFree(kListDateX, y, Format(line.hizuke, QStringLiteral("MM DD")));
        add(line.name, sixPlaces(line.gaku));
    }
}

void addMarks() {
    PBAddLine(QStringLiteral("<SIZE>9"));
    for (const int x : {1690, 3260, 4800, 6430}) {
        for (const int y : {4360, 4840}) {
            addFree(x, y, QStringLiteral("○"));
        }
    }
}

}  // namespace

void AddInvoiceAccount(const InvoiceMonth& invoice, const InvoiceReading& reading, Currency zenkaiGaku) {
    addList(invoice, reading, zenkaiGaku);
    if (reading.konkaiMeter > Currency(0)) {
        if (const auto ledger = ReadInvoiceLedger(invoice)) {
            addFree(kAmountX, 3860, sixBoxes(ledger->gaku + zenkaiGaku));
        }
    }
    addMarks();
}

void DrawInvoice(const InvoiceMonth& invoice, Date issued) {
    if (IsNoInvoice(invoice.deal)) return;
    PBInit();
    PB().NoTopRule = true;
    PB().NoPageTotals = true;
    PBAddLine(QStringLiteral("<FONT>ＭＳ 明朝"));
    PBAddLine(QStringLiteral("<SIZE>12"));
    addDate(issued);

    Recordset customer = OpenInvoiceCustomer(invoice.deal);
    if (customer.Eof()) return;
    addFree(500, 460, NumStr(invoice.deal));
    addFree(1600, 460, NullToEmpty(customer[QStringLiteral("Namae")]));
    addFree(360, 920,
            NullToEmpty(customer[QStringLiteral("Addr1")]) + NullToEmpty(customer[QStringLiteral("Addr2")]));
    customer.Close();

    const InvoiceReading reading = ReadInvoiceReading(invoice);
    if (reading.found) addReading(reading);

    Recordset sales = OpenSalesSum(invoice);
    addFree(kAmountX, 3460, sixBoxes(sales[QStringLiteral("tGaku")]));
    sales.Close();
    // The balance is asked of the set that has just been closed, which the store refuses with 3420: the run
    // ends here, in the screen's trap, before anything goes to the printer. The order is kept as dealers know
    // it; invoices are issued through the template.
    const Currency zenkaiGaku = moneyOf(sales[QStringLiteral("ZenkaiGaku")]);

    AddInvoiceAccount(invoice, reading, zenkaiGaku);
    PBRun();
    PrinterSurface::Current().EndDoc();
}

}  // namespace akarix
