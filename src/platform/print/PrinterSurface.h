#pragma once

#include "platform/print/PageSurface.h"

namespace akarix {

/// The page in the current printer. The font last set stays set as long as the program runs.
class PrinterSurface : public PageSurface {
 public:
    static PrinterSurface& Current();

    /// Back to the printer's own paper, upright.
    void StartUpright() { resetPaper(); }
    /// Sends the page off as a job of its own; a page on which nothing was drawn is none. Raises 482 when it
    /// cannot be printed; the page is dropped then.
    void EndDoc();
    void EndPage() override { EndDoc(); }
};

}  // namespace akarix
