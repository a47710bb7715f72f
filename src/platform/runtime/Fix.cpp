#include "platform/runtime/Fix.h"

#include <cmath>

#include "platform/runtime/WholePart.h"

namespace akarix {

Currency Fix(Currency value) {
    return Currency::FromScaled(value.Scaled() - value.Scaled() % Currency::kScale);
}

double Fix(double value) {
    return std::trunc(value);
}

Variant Fix(const Variant& value) {
    return WholePart(
        value, [](auto number) { return Fix(number); });
}

}  // namespace akarix
