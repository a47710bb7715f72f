#pragma once

#include <QString>

#include "platform/runtime/Int16.h"

namespace akarix {

/// What a report's caller adds to the printing.
class ReportOwner {
 public:
    virtual ~ReportOwner() = default;
    /// The tag <BKGRD>.
    virtual void BKGRD() = 0;
    /// In the place of the page's totals, when there are to be none.
    virtual void NoTotalAction() = 0;
    /// The text of a computed column in the present row.
    virtual QString alpha(Int16 n) = 0;
};

}  // namespace akarix
