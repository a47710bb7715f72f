#pragma once

#include <QString>
#include <compare>
#include <cstdint>

namespace akarix {

/// Fixed-point money and readings: a 64-bit integer scaled by 10,000, four exact decimals.
/// Range -922,337,203,685,477.5808 to 922,337,203,685,477.5807; leaving it raises RuntimeError 6.
/// Sum and difference are exact; a product or quotient is rounded half to even on the fifth decimal.
/// Layout and range: the 8-byte CY type of the Automation types, [MS-OAUT] 2.2.24.
class Currency {
 public:
    static constexpr std::int64_t kScale = 10000;

    constexpr Currency() = default;
    /*implicit*/ Currency(int value) : scaled_(std::int64_t{value} * kScale) {}  // NOLINT
    explicit Currency(std::int64_t value);
    Currency(double) = delete;  // money never passes through floating point; CCur() converts on purpose

    static constexpr Currency FromScaled(std::int64_t scaled) {
        Currency c;
        c.scaled_ = scaled;
        return c;
    }
    /// Reads plain decimal text ("-1234.5678"), rounding half to even past four decimals.
    /// Raises 13 when the text is no plain number, 6 when it is out of range.
    static Currency FromText(const QString& text);

    constexpr std::int64_t Scaled() const { return scaled_; }
    /// The shortest plain decimal text: "-0.5", "1234", no thousands marks, no blank in front.
    QString ToText() const;
    double ToDouble() const { return static_cast<double>(scaled_) / static_cast<double>(kScale); }
    bool IsZero() const { return scaled_ == 0; }

    Currency operator-() const;
    Currency& operator+=(Currency other) { return *this = *this + other; }
    Currency& operator-=(Currency other) { return *this = *this - other; }

    friend Currency operator+(Currency a, Currency b);
    friend Currency operator-(Currency a, Currency b);
    friend Currency operator*(Currency a, Currency b);
    /// Division by zero raises 11.
    friend Currency operator/(Currency a, Currency b);
    friend constexpr auto operator<=>(Currency a, Currency b) = default;
    friend constexpr bool operator==(Currency a, Currency b) = default;

 private:
    std::int64_t scaled_ = 0;
};

}  // namespace akarix
