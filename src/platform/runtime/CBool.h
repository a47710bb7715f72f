#pragma once

#include "platform/runtime/Variant.h"

namespace akarix {

/// False for 0 and Empty, else True; text is "True", "False" or a number, else 13. Null is 94.
bool CBool(const Variant& value);

}  // namespace akarix
