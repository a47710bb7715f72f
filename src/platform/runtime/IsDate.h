#pragma once

#include "platform/runtime/Variant.h"

namespace akarix {

/// True for a date and for text that reads as one; a number is no date, nor is its text.
bool IsDate(const Variant& value);

}  // namespace akarix
