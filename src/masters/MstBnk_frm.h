#pragma once

#include "masters/ConsignorForm.h"

namespace akarix {

/// Keeps the banks that collect for the dealer. The post office's row can be loaded and saved by its code,
/// but the walkers pass it by.
class MstBnk_frm : public ConsignorForm {
 public:
    MstBnk_frm();
};

}  // namespace akarix
