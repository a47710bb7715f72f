#pragma once

#include "platform/runtime/Variant.h"

namespace akarix {

/// True for a number and for text that CDbl would accept.
bool IsNumeric(const Variant& value);

}  // namespace akarix
