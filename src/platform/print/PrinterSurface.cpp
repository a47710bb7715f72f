#include "platform/print/PrinterSurface.h"

namespace akarix {

PrinterSurface& PrinterSurface::Current() {
    static PrinterSurface current;
    return current;
}

void PrinterSurface::EndDoc() {
    if (blank()) return;
    PrintPage page = takePage();
    page.insideMargins = true;  // scripts are laid out for the printer's own origin
    const auto job = OpenPrinterSink(QStringLiteral("Akarix"));
    job->add({std::move(page)});
    job->finish();
}

}  // namespace akarix
