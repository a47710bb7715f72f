#pragma once

#include "toolkit/MasterForm.h"

namespace akarix {

/// Keeps the goods and services that go on a sales slip (Hin), with their default price. A slip copies name
/// and price as it is typed, so a change here leaves the saved ones alone.
class MstHin_frm : public MasterForm {
 public:
    MstHin_frm();

 protected:
    bool maySave() override;
};

}  // namespace akarix
