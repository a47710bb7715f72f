#pragma once

#include "platform/runtime/Variant.h"

namespace akarix {

/// To a 32-bit integer; rules as CInt.
std::int32_t CLng(const Variant& value);

}  // namespace akarix
