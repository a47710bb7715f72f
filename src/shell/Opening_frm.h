#pragma once

#include "platform/forms/Form.h"
#include "platform/forms/Label.h"

namespace akarix {

/// The splash: stands for one second, or until its picture is clicked.
class Opening_frm : public Form {
    Q_OBJECT

 public:
    Opening_frm();

 private:
    Image* Image1_;
};

}  // namespace akarix
