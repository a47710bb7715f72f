#pragma once

#include <functional>

#include "platform/forms/ComboBox.h"
#include "platform/forms/Form.h"
#include "platform/forms/Label.h"
#include "platform/forms/TextBox.h"

namespace akarix {

/// A screen whose fields are walked by the keyboard. Enter and Tab go on, Up and Shift+Tab go back; whichever
/// way a field is left, its text is cut to the field's bytes.
class EntryForm : public Form {
 public:
    using Form::Form;

 protected:
    /// What Enter asks of a field before the walk goes on; False when it has moved the focus itself.
    using EnterRule = std::function<bool(int index)>;
    /// Does what Enter does in the field of that index, wherever the focus is.
    using PressEnter = std::function<void(int index)>;

    /// A new field of an array, with its input method.
    static TextBox& addBox(ControlArray<TextBox>& boxes, int index, ImeMode ime);

    /// Wires the keys of an array of fields. May be called for each array of a form.
    PressEnter wireKeys(const ControlArray<TextBox>& boxes, EnterRule enter);
    /// The same for lists, which ask nothing: Enter and Tab go on, Shift+Tab goes back, the arrows choose.
    void wireKeys(const ControlArray<ComboBox>& lists);

    /// Keeps a held or repeated Tab from running past the last button into the box whose Enter loads, which
    /// drops what was typed: the walk goes round to the field behind it.
    void goRoundPast(TextBox& loadingBox) { loadingBox_ = &loadingBox; }
    bool focusNextPrevChild(bool next) override;

    /// Wires a lookup picture: the code picked there goes into `box`, then Enter is pressed in field `field`.
    void wireLookup(Image& picture, const QString& table, const QString& mode, TextBox& box,
                    const PressEnter& press, int field);

 private:
    TextBox* loadingBox_ = nullptr;
};

}  // namespace akarix
