#pragma once

#include <optional>

#include "billing/DebitButtons.h"
#include "toolkit/EntryForm.h"

namespace akarix {

/// The billing screen: closes a month into the ledger.
class Seikyu_frm : public EntryForm {
 public:
    Seikyu_frm();
    void init();

 private:
    bool enter(int index) override;
    void showWeekday();
    void showClosingDate();
    void enterRetransfer(TextBox& eSaihi, KeyEvent& event);
    Date creation() const;
    void runBilling();

    Label* lYobi1_ = nullptr;
    Label* sSyukeibi_ = nullptr;
    std::optional<DebitButtons> disks_;
};

}  // namespace akarix
