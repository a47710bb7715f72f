#pragma once

#include "platform/print/PageSurface.h"

namespace akarix {

/// Shows each page of one report in the form FM. Nothing goes to the printer.
class PreviewSurface : public PageSurface {
 public:
    void EndPage() override;

 private:
    int pages_ = 0;
};

}  // namespace akarix
