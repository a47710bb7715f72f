#pragma once

#include <QString>
#include <optional>

#include "platform/runtime/Decimal.h"

namespace akarix {

/// Reads a number the way a clerk may write it: blanks around, a sign in front or behind, thousands marks,
/// "\" or "¥", parentheses for a negative, an exponent, all of it full-width too. Nothing else.
std::optional<Decimal> ReadNumberText(const QString& text);

}  // namespace akarix
