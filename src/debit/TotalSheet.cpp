#include "debit/TotalSheet.h"

#include "output/EX.h"
#include "platform/print/PrinterDialog.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/RuntimeError.h"
#include "store/Consignor.h"
#include "values/NumStr.h"

namespace akarix {

namespace {

bool choosePrinter() {
    constexpr int kCancelled = 32755;
    try {
        ShowPrinter();
        return true;
    } catch (const RuntimeError& error) {
        if (error.number() == kCancelled) return false;
        throw;
    }
}

void openSheet(const QString& title, const Consignor& consignor, const DebitTotals& totals) {
    ExcelOpen(QStringLiteral("口座振替合計表"));
    ExcelCell(QStringLiteral("A2"), title);
    ExcelCell(QStringLiteral("I5"), consignor.ItakuCode);
    ExcelCell(QStringLiteral("I6"), consignor.Itakusya);
    ExcelCell(QStringLiteral("I7"), NumStr(totals.count) + QStringLiteral("件"));
    ExcelCell(QStringLiteral("I8"),
              Format(totals.total, QStringLiteral("##,###,##0")) + QStringLiteral("円"));
}

void printSheet() {
    ExcelPrintPage();
    ExcelClose();
}

}  // namespace

void PrintBankTotalSheet(const Consignor& consignor, const DebitTotals& totals) {
    if (!choosePrinter()) return;
    openSheet(QStringLiteral("自払ＦＤ合計表"), consignor, totals);
    // A bank tries only once: what the sheet says of a second date goes.
    for (const char16_t* address : {u"C9", u"H9", u"I9"})
        ExcelCell(QString::fromUtf16(address), {});
    printSheet();
}

void PrintPostTotalSheet(const Consignor& consignor, const DebitTotals& totals, const QString& again) {
    if (!choosePrinter()) return;
    openSheet(QStringLiteral("ゆうちょ銀行ＦＤ合計表"), consignor, totals);
    ExcelCell(QStringLiteral("I9"), again);
    printSheet();
}

}  // namespace akarix
