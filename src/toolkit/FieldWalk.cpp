#include "toolkit/FieldWalk.h"

#include <algorithm>

#include "platform/forms/CommandButton.h"
#include "values/Text.h"

namespace akarix {

namespace {

bool Walks(const QWidget* control) {
    return qobject_cast<const TextBox*>(control) || qobject_cast<const ComboBox*>(control) ||
           qobject_cast<const CommandButton*>(control);
}

QWidget* WalkerAt(const Form& form, int tabIndex) {
    for (QWidget* control : form.Controls())
        if (Walks(control) && TabIndex(control) == tabIndex) return control;
    return nullptr;
}

void FocusWalker(QWidget* control) {
    if (auto* box = qobject_cast<TextBox*>(control))
        FocusSelect(*box);
    else
        SetFocus(control);
}

/// Takes the walk to the first visible control that `step` leads to. A number that no control holds, a
/// label's included, sends it to 0. The bound only matters on a form whose control 0 is hidden.
template <class Step>
void WalkFrom(Form& form, int from, Step step) {
    int target = from;
    for (qsizetype tries = 2 * form.Controls().size() + 2; tries > 0; --tries) {
        target = step(target);
        QWidget* control = WalkerAt(form, target);
        if (!control) {
            target = 0;
            control = WalkerAt(form, target);
        }
        if (control && control->isVisibleTo(&form)) return FocusWalker(control);
    }
}

}  // namespace

void NextField(Form& form, int tabIndex) {
    WalkFrom(form, tabIndex, [](int at) { return at + 1; });
}

void PrevField(Form& form, int tabIndex) {
    WalkFrom(form, tabIndex, [](int at) { return std::max(at - 1, 0); });
}

int MapEditKey(int keyCode, int shift) {
    if (keyCode != key::Tab) return keyCode;
    return shift == ShiftMask ? key::Up : key::Return;
}

void ClearControls(Form& form) {
    for (QWidget* control : form.Controls())
        if (auto* box = qobject_cast<TextBox*>(control))
            box->SetText({});
        else if (auto* combo = qobject_cast<ComboBox*>(control))
            combo->SetListIndex(-1);
    form.ForgetEdits();
}

void FocusSelect(TextBox& box) {
    SetFocus(&box);
    box.selectAll();
}

void FitMaxLength(TextBox& box) {
    if (box.MaxLength() == 0) return;
    const QString cut = CutBytes(box.Text(), box.MaxLength());
    if (cut != box.Text()) box.SetText(cut);
}

void CopyIfEmpty(const TextBox& source, TextBox& target) {
    if (HasText(target.Text())) return;
    target.SetText(source.Text());
    FitMaxLength(target);
}

}  // namespace akarix
