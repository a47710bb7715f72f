#include "toolkit/ControlMaker.h"

#include "platform/forms/ComboBox.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/Icons.h"
#include "platform/forms/Label.h"
#include "platform/forms/Style.h"

namespace akarix {

TextBox& ControlMaker::dressed(TextBox& box, int bytes, ImeMode ime) {
    SetTabIndex(&box, form_.takeTabIndex());
    box.SetMaxLength(bytes);
    box.SetIMEMode(ime);
    if (bytes > 0) box.setFixedWidth(BoxWidth(bytes));
    return box;
}

TextBox& ControlMaker::box(const QString& name, int bytes, ImeMode ime) {
    return dressed(Named(new TextBox(&form_), name), bytes, ime);
}

TextBox& ControlMaker::box(ControlArray<TextBox>& array, int index, int bytes, ImeMode ime) {
    return dressed(array.add(index, new TextBox(&form_)), bytes, ime);
}

ComboBox& ControlMaker::combo(const QString& name) {
    ComboBox& combo = Named(new ComboBox(&form_), name);
    SetTabIndex(&combo, form_.takeTabIndex());
    return combo;
}

CommandButton& ControlMaker::button(const QString& name, const QString& caption) {
    CommandButton& button = Named(new CommandButton(caption, &form_), name);
    SetTabIndex(&button, form_.takeTabIndex());
    return button;
}

CommandButton& ControlMaker::button(ControlArray<CommandButton>& array, int index, const QString& caption) {
    CommandButton& button = array.add(index, new CommandButton(caption, &form_));
    SetTabIndex(&button, form_.takeTabIndex());
    return button;
}

Image& ControlMaker::lookup(ControlArray<Image>& array, int index) {
    Image& picture = array.add(index, new Image(&form_));
    constexpr int kSide = 16;
    picture.setPixmap(DrawIcon(Icon::Lookup, kSide, &form_));
    picture.setCursor(Qt::PointingHandCursor);
    return picture;
}

Label& ControlMaker::caption(const QString& text) {
    return *new Label(text, &form_);
}

Label& ControlMaker::name(const QString& objectName, int bytes) {
    Label& label = Named(new Label({}, &form_), objectName);
    label.setMinimumWidth(BoxWidth(bytes));
    return label;
}

}  // namespace akarix
