#pragma once

#include "platform/print/PreviewForm.h"

namespace akarix {

/// The bare preview form: one page in the size of its paper, as far as the screen has room. Closing the
/// window goes on with the report; a bar to say so stands below the page where more may follow.
class FM : public PreviewForm {
 public:
    FM(PrintPage page, const PreviewPlace& place);
};

}  // namespace akarix
