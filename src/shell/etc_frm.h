#pragma once

#include "platform/forms/CommandButton.h"
#include "platform/runtime/Literals.h"
#include "toolkit/EntryForm.h"

namespace akarix {

/// The dealer's defaults: what a new customer and a new month start from, and where printing goes.
class etc_frm : public EntryForm {
 public:
    etc_frm();
    void init();

 private:
    bool enter(int index);
    void save();

    ControlArray<TextBox> ebox{u"ebox"_s};
    ControlArray<CommandButton> Btn{u"Btn"_s};
};

}  // namespace akarix
