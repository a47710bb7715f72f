#pragma once

#include "platform/dialect/Plan.h"

namespace akarix {

/// Conversions between the stored forms of numbers, rounded half to even. What does not fit in 64 bits is
/// given back as a double, which the checks of whole-number columns refuse.
StoreValue WholeFromReal(double value);
StoreValue CurrencyFromReal(double value);
std::int64_t WholeFromCurrency(std::int64_t scaled);

}  // namespace akarix
