#include "platform/runtime/Currency.h"

#include <limits>

#include "platform/runtime/Decimal.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

namespace {

__extension__ using Wide = __int128;

Currency Checked(Wide scaled) {
    if (scaled > std::numeric_limits<std::int64_t>::max() ||
        scaled < std::numeric_limits<std::int64_t>::min())
        throw RuntimeError(6);
    return Currency::FromScaled(static_cast<std::int64_t>(scaled));
}

Wide DivideHalfEven(Wide dividend, Wide divisor) {
    if (divisor < 0) {
        dividend = -dividend;
        divisor = -divisor;
    }
    Wide quotient = dividend / divisor;
    Wide rest = dividend % divisor;
    if (rest < 0) {
        rest += divisor;
        --quotient;
    }
    if (rest * 2 > divisor || (rest * 2 == divisor && quotient % 2 != 0)) ++quotient;
    return quotient;
}

}  // namespace

Currency::Currency(std::int64_t value) {
    *this = Checked(Wide{value} * kScale);
}

Currency Currency::FromText(const QString& text) {
    const auto decimal = Decimal::fromPlain(text);
    if (!decimal) throw RuntimeError(13);
    return FromScaled(decimal->scaled(4));
}

QString Currency::ToText() const {
    return Decimal::of(*this).plainText();
}

Currency Currency::operator-() const {
    return Checked(-Wide{scaled_});
}

Currency operator+(Currency a, Currency b) {
    return Checked(Wide{a.scaled_} + b.scaled_);
}

Currency operator-(Currency a, Currency b) {
    return Checked(Wide{a.scaled_} - b.scaled_);
}

Currency operator*(Currency a, Currency b) {
    return Checked(DivideHalfEven(Wide{a.scaled_} * b.scaled_, Currency::kScale));
}

Currency operator/(Currency a, Currency b) {
    if (b.IsZero()) throw RuntimeError(11);
    return Checked(DivideHalfEven(Wide{a.scaled_} * Currency::kScale, b.scaled_));
}

}  // namespace akarix
