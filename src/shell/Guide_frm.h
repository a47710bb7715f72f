#pragma once

#include "platform/print/EscapableForm.h"
#include "shell/GuidePages.h"

namespace akarix {

/// The guide beside the screens. It stays open while they are worked at, dialogs among them; Escape closes
/// it.
class Guide_frm : public EscapableForm {
 public:
    Guide_frm();

    /// Opens the guide, or brings it to the front, at the chapter of a form.
    static void OpenFor(const Form& form);

 private:
    void showBeside();

    GuidePages* Pages_;
};

/// The heading of a form's chapter among those of the screens. A dialog without one has that of the form it
/// stands on; the menu has none: there the guide begins.
QString GuideHeading(const Form& form);

}  // namespace akarix
