#include "debit/TotalSheet.h"

#include <functional>

#include "output/EX.h"
#include "output/PrintRun.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"
#include "store/Consignor.h"
#include "values/NumStr.h"

namespace akarix {

namespace {

const QString kTemplate = u"口座振替合計表"_s;

/// Nothing where the printer's dialog is cancelled.
void PrintSheet(const std::function<void()>& fill) {
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

void FillSheet(const QString& title, const Consignor& consignor, const DebitTotals& totals) {
    ExcelCell(u"A2"_s, title);
    ExcelCell(u"I5"_s, consignor.ItakuCode);
    ExcelCell(u"I6"_s, consignor.Itakusya);
    ExcelCell(u"I7"_s, NumStr(totals.count) + u"件"_s);
    ExcelCell(u"I8"_s, Format(totals.total, u"##,###,##0"_s) + u"円"_s);
}

}  // namespace

void PrintBankTotalSheet(const Consignor& consignor, const DebitTotals& totals) {
    PrintSheet([&] {
        FillSheet(u"自払ＦＤ合計表"_s, consignor, totals);
        // A bank tries only once: what the sheet says of a second date goes.
        for (const char16_t* address : {u"C9", u"H9", u"I9"})
            ExcelCell(QString::fromUtf16(address), {});
    });
}

void PrintPostTotalSheet(const Consignor& consignor, const DebitTotals& totals, const QString& again) {
    PrintSheet([&] {
        FillSheet(u"ゆうちょ銀行ＦＤ合計表"_s, consignor, totals);
        ExcelCell(u"I9"_s, again);
    });
}

}  // namespace akarix
