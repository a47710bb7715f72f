#pragma once

#include <cstdint>

#include "platform/runtime/Variant.h"

namespace akarix {

/// A column's value as a number of one kind; Null and Empty are 0. A value that does not fit raises 6.
Currency MoneyOf(const Variant& value);
std::int32_t LongOf(const Variant& value);
std::int16_t IntegerOf(const Variant& value);
/// A column's date; date 0 where there is none.
Date DateOf(const Variant& value);

}  // namespace akarix
