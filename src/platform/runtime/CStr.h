#pragma once

#include "platform/runtime/Variant.h"

namespace akarix {

/// The plain text of a value, as joining with "&" gives it; dates as yyyy/mm/dd with a time where there is
/// one. Null is 94, Empty the empty text.
QString CStr(const Variant& value);

}  // namespace akarix
