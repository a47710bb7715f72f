#pragma once

#include <cstdint>

#include "platform/runtime/Currency.h"
#include "values/BillingMonth.h"

namespace akarix {

/// Sets the balance carried into a customer's month by hand: the billing run then leaves it alone. The row
/// is made where the month has none.
void SetOpeningBalance(std::int32_t deal, BillingMonth month, Currency amount);

/// Takes the customer's whole row of the month away, with its charges and payments; the next billing run
/// builds it anew.
void RemoveOpeningBalance(std::int32_t deal, BillingMonth month);

}  // namespace akarix
