#include "reports/InvoiceSheet.h"

#include <array>

#include "output/EX.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"
#include "store/FieldValue.h"
#include "store/Lookup.h"
#include "values/CellAddress.h"
#include "values/NumStr.h"
#include "values/Text.h"

namespace akarix {

namespace {

// The sheet has two equal halves; the right one begins in column AC.
constexpr int kRightHalf = 28;
constexpr int kNameRow = 5;
constexpr int kAmountRow = 15;
constexpr int kNowRow = 18;
constexpr int kBeforeRow = 19;
constexpr int kUsageRow = 20;
constexpr int kFirstLine = 23;
constexpr int kLines = 8;

constexpr char16_t kColDate = u'A';
constexpr char16_t kColText = u'D';
constexpr char16_t kColCount = u'M';
constexpr char16_t kColPrice = u'P';
constexpr char16_t kColAmount = u'V';

const QString kTemplate = u"請求書"_s;
const QString kCount = u"##,###.0"_s;
const QString kYen = u"##,###,###"_s;
const QString kMonthDay = u"mm/dd"_s;

QString RightOf(char16_t column, int row) {
    return CellAddress(QString(column), row, kRightHalf, 0);
}

/// Writes into both halves.
void Put(char16_t column, int row, const QString& text) {
    ExcelCell(QString(column) + NumStr(row), text);
    ExcelCell(RightOf(column, row), text);
}

QString MonthDayOrEmpty(const QString& day) {
    return IsDate(day) ? Format(CDate(day), kMonthDay) : QString();
}

/// What one page has, from its head to its print.
class InvoicePages {
 public:
    InvoicePages(QString name, Currency due) : name_(std::move(name)), due_(due) { startPage(); }

    /// The row for the next line, on a new page when this one is full.
    int nextRow() {
        if (line_ == kLines) {
            ExcelPrintPage(true);
            ++page_;
            startPage();
        }
        return kFirstLine + line_++;
    }

 private:
    void startPage() {
        line_ = 0;
        dropPrices();
        Put(kColDate, kNameRow, name_ + u" 様"_s);
        Put(kColText, kAmountRow, page_ == 1 ? Format(due_, uR"(\\##,###,##0)"_s) : QString());
        for (const char16_t* block : {u"A18:M20", u"A23:M30", u"AC18:AO20", u"AC23:AX30"})
            ExcelCell(QString::fromUtf16(block), {});
    }

    /// The blocks of the head end before the left half's prices and amounts; what the page before wrote there
    /// must not go to the next customer.
    static void dropPrices() { ExcelCell(u"P23:V30"_s, {}); }

    QString name_;
    Currency due_;
    int page_ = 1;
    int line_ = 0;
};

Currency UsageOf(const InvoiceReading& reading) {
    const Currency before =
        reading.exchanged() ? reading.koukanMeter - reading.zenkaiMeter : Currency() - reading.zenkaiMeter;
    const Currency usage = reading.konkaiMeter + before;
    return usage > Currency(0) ? usage : Currency();
}

void PutMeters(const InvoiceReading& reading, const QString& previousDay) {
    Put(kColDate, kNowRow, MonthDayOrEmpty(reading.day));
    if (IsDate(previousDay)) {
        Put(kColDate, kBeforeRow, MonthDayOrEmpty(previousDay));
    } else {
        // After an exchange it is the reading's own date that goes, not the missing one.
        Put(kColDate, reading.exchanged() ? kNowRow : kBeforeRow, {});
    }
    Put(kColText, kNowRow, u"当月メーター指示数"_s);
    Put(kColCount, kNowRow, NumStr(reading.konkaiMeter));
    Put(kColText, kBeforeRow, u"前月メーター指示数"_s);
    Put(kColCount, kBeforeRow, NumStr(reading.zenkaiMeter));
    Put(kColText, kUsageRow, u"当月御使用量"_s);
    const Currency usage = UsageOf(reading);
    Put(kColCount, kUsageRow, usage.IsZero() ? QString() : NumStr(usage));
}

void PutLine(int row, const InvoiceLine& line) {
    Put(kColDate, row, Format(line.hizuke, u"MM/DD"_s));
    Put(kColText, row, line.name);
    Put(kColCount, row, Format(line.suu, kCount));
    Put(kColPrice, row, Format(line.tanka, kYen));
    Put(kColAmount, row, Format(line.gaku, kYen));
}

void PutGas(int row, const InvoiceReading& reading) {
    Put(kColDate, row, Format(CDate(reading.day), kMonthDay));
    Put(kColText, row, u"当月ガス料金 指針 : "_s + NumStr(reading.konkaiMeter));
    Put(kColCount, row, Format(UsageOf(reading), kCount));
    Put(kColAmount, row, Format(reading.gaku, kYen));
}

/// The name, the amount due, the first and the last line.
QStringList Indispensable(bool right) {
    constexpr int lastLine = kFirstLine + kLines - 1;
    constexpr std::array<std::pair<char16_t, int>, 6> cells{{{kColDate, kNameRow},
                                                             {kColText, kAmountRow},
                                                             {kColText, kFirstLine},
                                                             {kColAmount, kFirstLine},
                                                             {kColText, lastLine},
                                                             {kColAmount, lastLine}}};
    QStringList addresses;
    for (const auto& [column, row] : cells)
        addresses += right ? RightOf(column, row) : QString(column) + NumStr(row);
    return addresses;
}

/// A dealer may leave one half off the paper, but a half that is printed has to be whole.
void CheckTemplate() {
    bool printed = false;
    for (const bool right : {false, true}) {
        const QStringList addresses = Indispensable(right);
        QStringList missing;
        for (const QString& address : addresses)
            if (!ExcelPrints(address)) missing += address;
        if (missing.size() == addresses.size()) continue;
        if (!missing.isEmpty()) {
            throw RuntimeError(
                1004, u"テンプレート '%1' のセル %2 が印刷されません。"_s.arg(kTemplate, missing.first()));
        }
        printed = true;
    }
    if (!printed) throw RuntimeError(1004, u"テンプレート '%1' は請求書ではありません。"_s.arg(kTemplate));
}

}  // namespace

void OpenInvoiceSheet() {
    ExcelOpen(kTemplate);
    CheckTemplate();
}

void PrintInvoice(const InvoiceMonth& invoice) {
    Recordset customer = OpenInvoiceCustomer(invoice.deal);
    if (customer.Eof()) return;
    const QString name = NullToEmpty(customer[u"Namae"_s]);
    customer.Close();
    const auto ledger = ReadInvoiceLedger(invoice);
    if (!ledger) return;

    const InvoiceReading reading = ReadInvoiceReading(invoice);
    const QString previousDay =
        reading.day.isEmpty() ? QString() : PrevReadingDate(invoice.deal, invoice.month);
    Recordset sum = OpenSalesSum(invoice);
    const Currency sales = MoneyOf(sum[u"tGaku"_s]);
    sum.Close();

    // The sales count twice, since the ledger's amount holds them already: what is asked for on the sheet,
    // unlike on the screen.
    InvoicePages pages(name, ledger->zenkaiGaku - ledger->nGaku + sales + ledger->gaku);
    PutMeters(reading, previousDay);
    for (const InvoiceLine& line : ReadInvoiceLines(invoice))
        PutLine(pages.nextRow(), line);
    PutGas(pages.nextRow(), reading);
    ExcelPrintPage();
}

}  // namespace akarix
