#pragma once

#include "platform/runtime/Variant.h"

namespace akarix {

/// The greatest whole number not above the value.
Currency Int(Currency value);
double Int(double value);
/// Keeps the kind of its argument; text is read as a double.
Variant Int(const Variant& value);

}  // namespace akarix
