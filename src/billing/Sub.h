#pragma once

#include "platform/runtime/Variant.h"

namespace akarix {

/// Read-only questions that meter entry, invoices and the billing list share.
Currency PrevKonkaiMeter(int nendo, int getudo, std::int32_t deal);
void ReadMonthMeter(std::int32_t deal, int nendo, int getudo, Currency& zenkaiMeter, Currency& konkaiMeter,
                    Currency& suu);
Currency CalcGasCharge(std::int32_t deal, Currency usage);
bool IsNoInvoice(std::int32_t deal);

}  // namespace akarix
