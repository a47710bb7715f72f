#include "platform/runtime/Int.h"

#include <cmath>

#include "platform/runtime/WholePart.h"

namespace akarix {

Currency Int(Currency value) {
    const std::int64_t rest = value.Scaled() % Currency::kScale;
    const Currency cut = Currency::FromScaled(value.Scaled() - rest);
    return rest < 0 ? cut - Currency(1) : cut;
}

double Int(double value) {
    return std::floor(value);
}

Variant Int(const Variant& value) {
    return WholePart(
        value, [](auto number) { return Int(number); });
}

}  // namespace akarix
