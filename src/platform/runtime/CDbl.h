#pragma once

#include "platform/runtime/Variant.h"

namespace akarix {

/// To a double. Text may carry blanks around, a sign, thousands marks, "¥" or "\", parentheses, an exponent;
/// else 13.
double CDbl(const Variant& value);

}  // namespace akarix
