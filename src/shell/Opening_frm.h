#pragma once

#include "platform/forms/Form.h"
#include "platform/forms/Label.h"

namespace akarix {

/// The splash: stands for one second, or until its picture is clicked.
class Opening_frm : public Form {
 public:
    Opening_frm();

 private:
    Image* Image1_;
};

}  // namespace akarix
