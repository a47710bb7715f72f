#include "output/PreviewSurface.h"

#include "output/FM.h"

namespace akarix {

void PreviewSurface::EndPage() {
    (new FM(takePage(), ++pages_))->ShowModal();
}

}  // namespace akarix
