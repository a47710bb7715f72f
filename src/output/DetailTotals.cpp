#include "output/DetailTotals.h"

#include <algorithm>

#include "output/PrintReport.h"
#include "output/ReportOwner.h"
#include "platform/runtime/Literals.h"
#include "values/NumStr.h"

namespace akarix {
namespace {

using Totals = std::array<Currency, PrintReport::MaxColumns>;

constexpr int TotalledColumns = 20;  // further columns are never totalled

void Clear(Totals& totals) {
    std::fill_n(totals.begin(), TotalledColumns, Currency());
}

/// The caption stands where the first column does, which prints over it when it has a total. A total moves
/// the pen on like any text, and the column's width comes on top of that.
void PrintTotals(PrintReport& report, PrintSurface& surface, const QString& caption, const Totals& totals) {
    Pen& pen = report.pen;
    pen.PenX = report.DetailLeft;
    pen.Print(surface, caption);
    pen.PenX = report.DetailLeft;
    for (int i = 0; i < TotalledColumns; ++i) {
        const PrintColumn& column = report.Column(i);
        if (column.WithTotal) pen.Print(surface, PadFormat(totals[static_cast<size_t>(i)], column.Mask));
        pen.PenX += column.Width + column.Gap;
    }
}

}  // namespace

void PrintPageTotals(PrintReport& report, PrintSurface& surface) {
    if (report.NoPageTotals) {
        report.owner().NoTotalAction();
        return;
    }
    Pen& pen = report.pen;
    pen.Rule(surface);
    pen.ToLeft();
    PrintTotals(report, surface, u"頁計："_s, report.PageTotal);
    pen.NewLine();
    PrintTotals(report, surface, u"累計："_s, report.RunTotal);
    Clear(report.PageTotal);
    pen.NewLine();
    pen.Rule(surface);
}

void PrintGroupTotals(PrintReport& report, PrintSurface& surface, bool last) {
    if (report.GroupField.isEmpty()) return;
    Pen& pen = report.pen;
    pen.Rule(surface);
    pen.ToLeft();
    // The page and the group share one sum: a page that ends within a group takes its part away.
    PrintTotals(report, surface, u"小計："_s, report.PageTotal);
    Clear(report.PageTotal);
    report.RowsOnPage += 2;
    pen.PenY += pen.LineStep * 2;
    if (!last) return;
    pen.PenY -= pen.LineStep * 2;
    pen.NewLine();
    pen.Rule(surface);
    pen.ToLeft();
    PrintTotals(report, surface, u"総計："_s, report.RunTotal);
    Clear(report.SpareTotal);
    pen.NewLine();
    pen.Rule(surface);
}

}  // namespace akarix
