#pragma once

#include "toolkit/LookupForm.h"

namespace akarix {

/// Picks one of all sales slips, the newest first; one row per slip.
class HelpSlip_frm : public LookupForm {
 public:
    HelpSlip_frm();
    void Start();
};

}  // namespace akarix
