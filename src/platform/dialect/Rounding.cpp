#include "platform/dialect/Rounding.h"

#include <cmath>

#include "platform/runtime/Conversion.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

StoreValue WholeFromReal(double value) {
    const double rounded = std::nearbyint(value);
    if (!(std::abs(rounded) < 9.2e18)) return value;
    return static_cast<std::int64_t>(rounded);
}

StoreValue CurrencyFromReal(double value) {
    try {
        return CCur(value).Scaled();
    } catch (const RuntimeError&) {
        return value * static_cast<double>(Currency::kScale);
    }
}

std::int64_t WholeFromCurrency(std::int64_t scaled) {
    const std::int64_t whole = scaled / Currency::kScale;
    const std::int64_t rest = std::abs(scaled % Currency::kScale) * 2;
    const bool away = rest > Currency::kScale || (rest == Currency::kScale && whole % 2 != 0);
    return away ? whole + (scaled < 0 ? -1 : 1) : whole;
}

}  // namespace akarix
