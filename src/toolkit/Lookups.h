#pragma once

#include <QString>

#include "platform/forms/Form.h"
#include "platform/forms/Label.h"
#include "platform/forms/TextBox.h"

namespace akarix {

/// Opens Help_frm for a table, or HelpDeal_frm for "Deal", modally; gives the picked code, or the empty text.
QString PickCode(const QString& table, const QString& mode);

/// Wires a lookup picture the way every screen does: pressed look, dialog, code into the box, then `enter`
/// runs as if Enter had been pressed there.
void WireLookup(Form& form, Image& picture, const QString& table, const QString& mode, TextBox& box,
                std::function<void()> enter);

}  // namespace akarix
