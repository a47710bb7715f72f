#pragma once

#include "platform/runtime/Variant.h"

namespace akarix {

/// To Currency, rounded half to even on the fifth decimal; text goes by its decimal digits, not through a
/// double.
Currency CCur(const Variant& value);

}  // namespace akarix
