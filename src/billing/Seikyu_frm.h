#pragma once

#include "platform/forms/CommandButton.h"
#include "platform/forms/Label.h"
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
    void Command_Click(int index);
    void runBilling();

    ControlArray<TextBox> ebox{QStringLiteral("ebox")};
    ControlArray<CommandButton> Command_{QStringLiteral("Command")};
    ControlArray<Image> F6{QStringLiteral("F6")};
    TextBox* eSaihi_ = nullptr;
    Label* lYobi1_ = nullptr;
    Label* lyobi2_ = nullptr;
    Label* sSyukeibi_ = nullptr;
    Label* saihiHead_ = nullptr;  ///< "再振替日", Label(6) of the form
    Label* saihiHint_ = nullptr;  ///< "Enterで決定", Label1 of the form
    Label* Progress_ = nullptr;
};

}  // namespace akarix
