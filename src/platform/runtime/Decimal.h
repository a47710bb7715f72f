#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/runtime/Currency.h"

namespace akarix {

/// A number as its decimal digits, the common ground of all conversions between numbers and text.
/// The value is 0.DIGITS times ten to the power of `point`; zero has no digits.
struct Decimal {
    bool negative = false;
    std::string digits;
    int point = 0;

    /// The double rounded to that many significant digits, as the classic texts show it.
    static Decimal of(double value, int significant = 15);
    /// The shortest digits that read back as the same double.
    static Decimal shortest(double value);
    static Decimal of(Currency value);
    static Decimal of(std::int64_t value);
    /// Digits and nothing else, as most texts are: read without the trouble of the next one.
    static std::optional<Decimal> fromDigits(const QString& text);
    /// "-12.5", ".5", "5.", "1.5E-3"; nothing else in front or behind.
    static std::optional<Decimal> fromPlain(const QString& text);

    bool isZero() const { return digits.empty(); }
    /// Drops leading and trailing zeros.
    void normalise();
    /// Keeps that many digits behind the point, rounded half away from zero.
    void roundTo(int places);

    /// The value times 10^places, rounded half to even; raises 6 outside 64 bits.
    std::int64_t scaled(int places) const;
    /// Raises 6 when it is out of a double's range.
    double toDouble() const;

    QString plainText() const;
    /// "-0.5", or "1E+15" where plain digits would need more than `significant` places.
    QString generalText(int significant) const;
};

}  // namespace akarix
