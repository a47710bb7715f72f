#pragma once

#include "platform/runtime/Variant.h"

namespace akarix {

/// To a 16-bit integer, rounded half to even, the range tested after rounding (6). Text by CDbl's rules (13);
/// Null is 94.
std::int16_t CInt(const Variant& value);

}  // namespace akarix
