#pragma once

#include <optional>

#include "platform/runtime/Decimal.h"
#include "platform/runtime/Variant.h"

namespace akarix {

/// The exact number behind a value, without a detour through a double where it has none: Empty is 0, True -1,
/// a date its serial. Raises 94 for Null, 13 for text that is no number.
Decimal NumberOf(const Variant& value);

/// Digits that the classic texts show for the kind: 7 for a Single, else 15.
int SignificantDigits(VarType type);

/// The number as the classic texts show it.
Decimal ShownNumberOf(const Variant& value);

/// Reads a number the way a clerk may write it: blanks around, a sign in front or behind, thousands marks,
/// "\" or "¥", parentheses for a negative, an exponent, all of it full-width too. Nothing else.
std::optional<Decimal> ReadNumberText(const QString& text);

}  // namespace akarix
