#pragma once

#include <optional>

#include "billing/DebitButtons.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/Label.h"
#include "platform/runtime/Literals.h"
#include "toolkit/EntryForm.h"

namespace akarix {

/// The billing screen: closes a month into the ledger.
class Seikyu_frm : public EntryForm {
 public:
    Seikyu_frm();
    void init();

 private:
    void layOut();
    bool enter(int index);
    void showWeekday();
    void showClosingDate();
    void enterRetransfer(TextBox& eSaihi, KeyEvent& event);
    void Command_Click(int index);
    void runBilling();

    ControlArray<TextBox> ebox{u"ebox"_s};
    ControlArray<CommandButton> Command_{u"Command"_s};
    ControlArray<Image> F6{u"F6"_s};
    Label* lYobi1_ = nullptr;
    Label* sSyukeibi_ = nullptr;
    std::optional<DebitButtons> disks_;
};

}  // namespace akarix
