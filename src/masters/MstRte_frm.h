#pragma once

#include "toolkit/MasterForm.h"

namespace akarix {

/// Keeps the routes (Rte) that the meter reader walks, with their reading day.
class MstRte_frm : public MasterForm {
 public:
    MstRte_frm();
};

}  // namespace akarix
