#pragma once

#include "entry/LedgerMonth.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/KeyEvent.h"
#include "platform/forms/Label.h"
#include "platform/runtime/Literals.h"
#include "toolkit/EntryForm.h"

namespace akarix {

class FlexGrid;

/// Sets the balances with which many customers come into a month, typed one under the other into a grid. The
/// billing run then leaves the carried balance of every saved row alone, those left at 0 too: whoever sets
/// balances route by route shows only that route.
class TorZan_frm : public EntryForm {
 public:
    TorZan_frm();
    void init();

 private:
    void layOut();
    bool enter(int index);
    void clear();

    LedgerMonth month() const;
    void show();
    void fill(LedgerMonth month);
    void save();

    void openBox();
    void boxKey(KeyEvent& event);
    void confirm();
    void moveTo(int row);

    ControlArray<TextBox> ebox{u"ebox"_s};
    ControlArray<CommandButton> Btn{u"Btn"_s};
    ControlArray<Image> F6{u"F6"_s};
    Label* sRte_ = nullptr;
    Label* sNamae_ = nullptr;
    FlexGrid* List_ = nullptr;
    TextBox* tBox_ = nullptr;
};

}  // namespace akarix
