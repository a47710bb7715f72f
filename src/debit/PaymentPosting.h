#pragma once

#include <cstdint>

#include "platform/runtime/Currency.h"
#include "platform/runtime/Date.h"

namespace akarix {

/// Books what a bank has debited: a payment under the next free number, in the month that the day falls into
/// for the customer. The ledger's payments of that month become this amount alone until the month is billed
/// again, which adds up all of them; a month without a ledger row waits for that run as well.
void PostPayment(std::int32_t deal, Date hizuke, Currency amount);

}  // namespace akarix
