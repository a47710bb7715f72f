#pragma once

#include "platform/jet/Plan.h"

namespace akarix {

/// Conversions between the stored forms of numbers, rounded half to even. What does not fit in 64 bits is
/// given back as a double, which the checks of whole-number columns refuse.
StoreValue wholeFromReal(double value);
StoreValue currencyFromReal(double value);
std::int64_t wholeFromCurrency(std::int64_t scaled);

}  // namespace akarix
