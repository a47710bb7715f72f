#pragma once

#include "platform/print/EscapableForm.h"
#include "platform/print/PrintJob.h"

namespace akarix {

/// The bare preview form: one page in the size of its paper, as far as the screen has room. Closing the
/// window goes on with the report.
class FM : public EscapableForm {
 public:
    /// \param number of the page in its report, from 1
    FM(PrintPage page, int number);
};

}  // namespace akarix
