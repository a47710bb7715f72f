#pragma once

#include <QString>

namespace akarix {

// The pick lists, each shown modally: the picked code or number, or the empty text.

/// Of a table: customers for "Deal", else what Help_frm lists.
QString PickCode(const QString& table);
/// One of a customer's payment slips.
QString PickPayment(std::int32_t customer);
/// A sales slip.
QString PickSlip();

}  // namespace akarix
