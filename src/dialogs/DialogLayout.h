#pragma once

#include "platform/forms/Icons.h"

namespace akarix {

class CommandButton;
class Form;

/// The look the dialogs share: a picture at the left, what the dialog says beside it, and below, where there
/// is one, the button.
void LayOutDialog(Form& form, Icon icon, const QString& pictureName, QWidget& words, CommandButton* button);

}  // namespace akarix
