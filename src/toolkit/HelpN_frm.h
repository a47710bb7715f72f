#pragma once

#include "toolkit/LookupForm.h"

namespace akarix {

/// Picks one of a customer's payment slips, the latest first.
class HelpN_frm : public LookupForm {
 public:
    HelpN_frm();
    void Start(std::int32_t customer);
};

}  // namespace akarix
