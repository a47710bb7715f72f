#pragma once

#include "platform/forms/Form.h"

namespace akarix {

class CommandButton;
class Label;

/// One message and its OK button.
class Alert_frm : public Form {
    Q_OBJECT

 public:
    Alert_frm();
    void SetMessage(const QString& message);

 private:
    Label* Message;
    CommandButton* Btn;
};

}  // namespace akarix
