#pragma once

#include "toolkit/EntryForm.h"

namespace akarix {

/// The dealer's defaults: what a new customer and a new month start from, and where printing goes.
class etc_frm : public EntryForm {
 public:
    etc_frm();
    void init();

 private:
    bool enter(int index) override;
    void save();
};

}  // namespace akarix
