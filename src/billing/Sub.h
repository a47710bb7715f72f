#pragma once

#include "platform/runtime/Currency.h"
#include "values/BillingMonth.h"

namespace akarix {

// Read-only questions that meter entry, invoices and the billing list share. Readings and use are in cubic
// metres, charges in yen.

/// What a new month's ZenkaiMeter starts from: the reading of the latest earlier month, 0 when there is none.
Currency PrevKonkaiMeter(std::int32_t deal, BillingMonth month);
/// The month's readings and use; all 0 when the customer was not read.
struct MonthMeter {
    Currency zenkaiMeter, konkaiMeter, suu;
};
MonthMeter ReadMonthMeter(std::int32_t deal, BillingMonth month);
/// The charge by the customer's tariff band; 0 without a customer or a band for that use. Only the metered
/// part loses its fraction of a yen, downwards. Raises 6 on overflow.
Currency CalcGasCharge(std::int32_t deal, Currency usage);
/// True as well for a customer who is not known.
bool IsNoInvoice(std::int32_t deal);

}  // namespace akarix
