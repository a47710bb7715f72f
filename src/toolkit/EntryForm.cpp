#include "toolkit/EntryForm.h"

#include "toolkit/FieldWalk.h"
#include "toolkit/Lookups.h"

namespace akarix {

TextBox& EntryForm::addBox(ControlArray<TextBox>& boxes, int index, ImeMode ime) {
    TextBox& box = boxes.add(index, new TextBox);
    box.SetIMEMode(ime);
    return box;
}

EntryForm::PressEnter EntryForm::wireKeys(const ControlArray<TextBox>& boxes, EnterRule enter) {
    const PressEnter press = [this, boxes, enter = std::move(enter)](int index) {
        if (!enter(index)) return;
        TextBox& box = boxes(index);
        FitMaxLength(box);
        NextField(*this, TabIndex(&box));
    };
    on(
        boxes, &TextBox::KeyDown,
        [this, boxes, press](int index, KeyEvent& event) {
            switch (MapEditKey(event.KeyCode, event.Shift)) {
                case key::Return:
                    event.KeyCode = 0;
                    press(index);
                    break;
                case key::Up:
                    event.KeyCode = 0;
                    FitMaxLength(boxes(index));
                    PrevField(*this, TabIndex(&boxes(index)));
                    break;
                default:
                    break;
            }
        });
    on(boxes, &TextBox::LostFocus, [boxes](int index) { FitMaxLength(boxes(index)); });
    return press;
}

void EntryForm::wireKeys(const ControlArray<ComboBox>& lists) {
    on(
        lists, &ComboBox::KeyDown,
        [this, lists](int index, KeyEvent& event) {
            if (event.KeyCode != key::Return && event.KeyCode != key::Tab) return;  // Up chooses here
            const int place = TabIndex(&lists(index));
            if (MapEditKey(event.KeyCode, event.Shift) == key::Return)
                NextField(*this, place);
            else
                PrevField(*this, place);
            event.KeyCode = 0;
        });
}

bool EntryForm::focusNextPrevChild(bool next) {
    const bool moved = Form::focusNextPrevChild(next);
    if (moved && next && loadingBox_ != nullptr && focusWidget() == loadingBox_)
        NextField(*this, TabIndex(loadingBox_));
    return moved;
}

void EntryForm::wireLookup(Image& picture, const QString& table, const QString& mode, TextBox& box,
                           const PressEnter& press, int field) {
    WireLookup(
        *this, picture, table, mode, box, [press, field] { press(field); });
}

}  // namespace akarix
