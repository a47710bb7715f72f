#pragma once

#include <QString>

#include "platform/forms/ComboBox.h"
#include "platform/forms/Form.h"
#include "platform/forms/TextBox.h"

namespace akarix {

/// Moves the focus to the next text box, combo or button by TabIndex; wraps to 0; invisible ones are passed
/// over.
void NextField(Form& form, int tabIndex);
void PrevField(Form& form, int tabIndex);
/// Tab is Enter, Shift+Tab is Up; every other key comes back unchanged.
int MapEditKey(int keyCode, int shift);
/// Every text box empty, every combo without a selection; labels and grids stay.
void ClearControls(Form& form);
void FocusSelect(TextBox& box);
/// Cuts the text to MaxLength bytes.
void FitMaxLength(TextBox& box);
/// Copies the text where the target has none.
void CopyIfEmpty(const TextBox& source, TextBox& target);

}  // namespace akarix
