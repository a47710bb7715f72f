#pragma once

#include <QString>
#include <functional>

namespace akarix {

class Form;
class Image;
class TextBox;

/// Opens Help_frm for a table, or HelpDeal_frm for "Deal", modally; gives the picked code, or the empty text.
QString PickCode(const QString& table, const QString& mode);
/// The number of one of a customer's payment slips, or the empty text.
QString PickPayment(std::int32_t customer);
/// The number of a sales slip, or the empty text.
QString PickSlip();

/// Wires a lookup picture the way every screen does: pressed look, `pick`, code into the box, then `enter`
/// runs as if Enter had been pressed there. Without a pick the box stays as it is.
void WireLookup(Form& form, Image& picture, std::function<QString()> pick, TextBox& box,
                std::function<void()> enter);
/// The same with the lookup of a table.
void WireLookup(Form& form, Image& picture, const QString& table, const QString& mode, TextBox& box,
                std::function<void()> enter);

}  // namespace akarix
