#pragma once

#include "platform/runtime/Variant.h"

namespace akarix {

/// The whole part, cut toward zero.
Currency Fix(Currency value);
double Fix(double value);
Variant Fix(const Variant& value);

}  // namespace akarix
