#pragma once

#include "toolkit/LookupForm.h"

namespace akarix {

/// Looks a customer up by reading, name and route. Nobody is listed before a search.
class HelpDeal_frm : public LookupForm {
 public:
    HelpDeal_frm();
    void Start() {
        begin();
        emptyList();
    }

 private:
    void search();
};

}  // namespace akarix
