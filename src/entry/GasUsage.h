#pragma once

#include "platform/runtime/Currency.h"

namespace akarix {

/// The month's use from its readings. A KoukanMeter other than 0 tells that the meter was exchanged; without
/// it KoukanGoMeter does not count.
Currency CalcGasUsage(Currency zenkaiMeter, Currency koukanMeter, Currency koukanGoMeter,
                      Currency konkaiMeter);

}  // namespace akarix
