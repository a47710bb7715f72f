#pragma once

#include "masters/ConsignorForm.h"

namespace akarix {

/// Keeps the post office as a collecting bank: the row 9900 of Bnk.
class MstYubin_frm : public ConsignorForm {
 public:
    MstYubin_frm();

 protected:
    QString proposedCode() override;
    void showDefaults() override;
    bool maySave() override;
};

}  // namespace akarix
