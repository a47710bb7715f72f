#include "output/RunReport.h"

#include "output/DetailRows.h"
#include "output/PlayScript.h"
#include "output/PrintReport.h"
#include "platform/print/PrintSurface.h"

namespace akarix {
namespace {

void RunPages(PrintReport& report, PrintSurface& surface) {
    DetailRows rows(report, surface);
    report.Surface = &surface;
    report.RowsOnPage = 0;
    for (bool ended = false; !ended;) {
        PlayScript(report, surface);
        rows.MeasureColumns();
        ended = !report.DetailMode || rows.PrintPage();
        report.PagesFollow = !ended;
        surface.EndPage();
        report.pen.PenX = 0;
        report.pen.PenY = 0;
    }
}

}  // namespace

void RunReport(PrintReport& report, PrintSurface& surface) {
    try {
        RunPages(report, surface);
        report.Surface = nullptr;
    } catch (...) {
        report.Surface = nullptr;
        surface.Cls();  // half a page would come out with the next report
        throw;
    }
}

}  // namespace akarix
