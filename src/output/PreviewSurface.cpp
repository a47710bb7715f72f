#include "output/PreviewSurface.h"

#include "output/FM.h"
#include "output/PrintReport.h"
#include "output/PrintRun.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

void PreviewSurface::EndPage() {
    ++pages_;
    PreviewPlace place = PrintRun::NextPage(report_.PagesFollow);
    if (place.page.isEmpty()) place.page = u"%1 頁"_s.arg(pages_);
    if (!PreviewForm::Run(new FM(takePage(), place))) throw RuntimeError(CancelledByOperator);
}

}  // namespace akarix
