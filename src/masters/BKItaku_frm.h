#pragma once

#include "platform/forms/CommandButton.h"
#include "platform/runtime/Literals.h"
#include "toolkit/EntryForm.h"
#include "toolkit/FieldTable.h"

class QVBoxLayout;

namespace akarix {

/// A bank and the post office as they stand in the user options, on one screen. Nothing else reads what is
/// kept here, and the menu's button to it is off.
class BKItaku_frm : public EntryForm {
 public:
    BKItaku_frm();
    void init();

 private:
    void addFrame(QVBoxLayout& body, const QString& caption, const FieldTable& fields);
    void save();

    ControlArray<TextBox> ebox{u"ebox"_s};
    ControlArray<CommandButton> Btn{u"Btn"_s};
};

}  // namespace akarix
