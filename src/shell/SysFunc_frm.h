#pragma once

#include "platform/forms/CommandButton.h"
#include "platform/runtime/Literals.h"
#include "toolkit/EntryForm.h"

namespace akarix {

/// Service's access to the settings rows: any code, any contents. What is read at the start counts from the
/// next start on.
class SysFunc_frm : public EntryForm {
 public:
    SysFunc_frm();
    void init();

 private:
    bool enter(int index);
    void load();
    void save();
    QString question() const;

    ControlArray<TextBox> ebox{u"ebox"_s};
    CommandButton* Btn_;
};

}  // namespace akarix
