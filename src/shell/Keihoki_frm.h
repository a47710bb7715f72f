#pragma once

#include "platform/forms/CommandButton.h"
#include "platform/runtime/Literals.h"
#include "toolkit/EntryForm.h"

namespace akarix {

/// The monthly lease fees that the billing run charges: gas alarm and ACU.
class Keihoki_frm : public EntryForm {
 public:
    Keihoki_frm();
    void init();

 private:
    void save();

    ControlArray<TextBox> ebox{u"ebox"_s};
    CommandButton* Btn_;
};

}  // namespace akarix
