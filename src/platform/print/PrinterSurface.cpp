#include "platform/print/PrinterSurface.h"

#include "platform/runtime/Literals.h"

namespace akarix {

PrinterSurface& PrinterSurface::Current() {
    static PrinterSurface current;
    return current;
}

void PrinterSurface::EndDoc() {
    if (blank()) return;
    PrintPage page = takePage();
    page.insideMargins = true;  // scripts are laid out for the printer's own origin
    const auto job = OpenPrinterSink(u"Akarix"_s);
    job->add({std::move(page)});
    job->finish();
}

}  // namespace akarix
