#include "debit/TotalSheet.h"

#include <functional>

#include "output/EX.h"
#include "output/PrintRun.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/RuntimeError.h"
#include "store/Consignor.h"
#include "values/NumStr.h"

namespace akarix {

namespace {

const QString kTemplate = QStringLiteral("口座振替合計表");

/// Nothing where the printer's dialog is cancelled.
void printSheet(const std::function<void()>& fill) {
    try {
        const PrintRun run(kTemplate);
        ExcelOpen(kTemplate);
        fill();
        ExcelPrintPage();
        ExcelClose();
    } catch (const RuntimeError& error) {
        if (error.number() != CancelledByOperator) throw;
    }
}

void fillSheet(const QString& title, const Consignor& consignor, const DebitTotals& totals) {
    ExcelCell(QStringLiteral("A2"), title);
    ExcelCell(QStringLiteral("I5"), consignor.ItakuCode);
    ExcelCell(QStringLiteral("I6"), consignor.Itakusya);
    ExcelCell(QStringLiteral("I7"), NumStr(totals.count) + QStringLiteral("件"));
    ExcelCell(QStringLiteral("I8"),
              Format(totals.total, QStringLiteral("##,###,##0")) + QStringLiteral("円"));
}

}  // namespace

void PrintBankTotalSheet(const Consignor& consignor, const DebitTotals& totals) {
    printSheet([&] {
        fillSheet(QStringLiteral("自払ＦＤ合計表"), consignor, totals);
        // A bank tries only once: what the sheet says of a second date goes.
        for (const char16_t* address : {u"C9", u"H9", u"I9"})
            ExcelCell(QString::fromUtf16(address), {});
    });
}

void PrintPostTotalSheet(const Consignor& consignor, const DebitTotals& totals, const QString& again) {
    printSheet([&] {
        fillSheet(QStringLiteral("ゆうちょ銀行ＦＤ合計表"), consignor, totals);
        ExcelCell(QStringLiteral("I9"), again);
    });
}

}  // namespace akarix
