#include "output/PB.h"

#include "output/PreviewSurface.h"
#include "output/RunReport.h"
#include "platform/print/PrinterSurface.h"
#include "store/Settings.h"

namespace akarix {

PrintReport& PB() {
    static PrintReport report;
    return report;
}

void PBInit() {
    PB().Init();
    if (!gPrintPreview) PrinterSurface::Current().StartUpright();
}

void PBAddLine(const QString& line) {
    PB().AddLine(line);
}

void PBRun() {
    if (gPrintPreview) {
        PreviewSurface surface(PB());
        RunReport(PB(), surface);
    } else {
        RunReport(PB(), PrinterSurface::Current());
    }
}

}  // namespace akarix
