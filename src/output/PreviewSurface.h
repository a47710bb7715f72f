#pragma once

#include "platform/print/PageSurface.h"

namespace akarix {

struct PrintReport;

/// Shows each page of one report in the form FM. Nothing goes to the printer. EndPage raises 32755 when the
/// operator wants to see no more.
class PreviewSurface : public PageSurface {
 public:
    explicit PreviewSurface(const PrintReport& report) : report_(report) {}
    void EndPage() override;

 private:
    const PrintReport& report_;
    int pages_ = 0;
};

}  // namespace akarix
