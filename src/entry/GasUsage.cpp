#include "entry/GasUsage.h"

namespace akarix {

Currency CalcGasUsage(Currency zenkaiMeter, Currency koukanMeter, Currency koukanGoMeter,
                      Currency konkaiMeter) {
    if (koukanMeter.IsZero()) return konkaiMeter - zenkaiMeter;
    return (koukanMeter - zenkaiMeter) + konkaiMeter - koukanGoMeter;
}

}  // namespace akarix
