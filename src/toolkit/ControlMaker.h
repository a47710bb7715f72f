#pragma once

#include <QString>

#include "platform/forms/ControlArray.h"
#include "platform/forms/TextBox.h"

namespace akarix {

class ComboBox;
class CommandButton;
class Form;
class Image;
class Label;

/// Makes a form's controls under their names. Those that walk (boxes, combos, buttons) take their places in
/// the walk in the order in which they are made. A box is as wide as the bytes it takes; 0 bytes leaves limit
/// and width open.
class ControlMaker {
 public:
    explicit ControlMaker(Form& form) : form_(form) {}

    TextBox& box(const QString& name, int bytes, ImeMode ime);
    TextBox& box(ControlArray<TextBox>& array, int index, int bytes, ImeMode ime);
    ComboBox& combo(const QString& name);
    CommandButton& button(const QString& name, const QString& caption);
    CommandButton& button(ControlArray<CommandButton>& array, int index, const QString& caption);
    /// The picture beside a code that opens its lookup.
    Image& lookup(ControlArray<Image>& array, int index);
    /// Fixed text.
    Label& caption(const QString& text);
    /// The name beside a code, with room for so many bytes.
    Label& name(const QString& objectName, int bytes);

 private:
    TextBox& dressed(TextBox& box, int bytes, ImeMode ime);

    Form& form_;
};

}  // namespace akarix
