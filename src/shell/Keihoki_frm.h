#pragma once

#include "toolkit/EntryForm.h"

namespace akarix {

/// The monthly lease fees that the billing run charges: gas alarm and ACU.
class Keihoki_frm : public EntryForm {
 public:
    Keihoki_frm();
    void init();

 private:
    void save();
};

}  // namespace akarix
