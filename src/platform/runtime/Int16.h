#pragma once

#include <compare>
#include <cstdint>

namespace akarix {

/// A signed 16-bit number: what leaves its range raises 6 instead of wrapping.
class Int16 {
 public:
    constexpr Int16() = default;
    /*implicit*/ Int16(int value);  // NOLINT
    Int16(double) = delete;         // Rounded says how
    /// The nearest whole number, halves to even.
    static Int16 Rounded(double value);

    constexpr int value() const { return value_; }

    Int16& operator+=(Int16 other) { return *this = *this + other; }
    Int16& operator-=(Int16 other) { return *this = *this - other; }
    friend Int16 operator+(Int16 a, Int16 b) { return a.value_ + b.value_; }
    friend Int16 operator-(Int16 a, Int16 b) { return a.value_ - b.value_; }
    friend Int16 operator*(Int16 a, Int16 b) { return a.value_ * b.value_; }
    friend constexpr auto operator<=>(Int16 a, Int16 b) = default;

 private:
    std::int16_t value_ = 0;
};

}  // namespace akarix
