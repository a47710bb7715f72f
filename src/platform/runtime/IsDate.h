#pragma once

#include "platform/runtime/Variant.h"

namespace akarix {

/// True for a date and for text that CDate would accept; a number is no date.
bool IsDate(const Variant& value);

}  // namespace akarix
