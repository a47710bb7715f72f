#pragma once

#include <compare>

namespace akarix {

/// The run time's date value: days since 1899-12-30, the fraction being the time of day. 0 means "no date".
/// Range 100-01-01 to 9999-12-31. Published: [MS-OAUT] 2.2.25, DATE.
class Date {
 public:
    constexpr Date() = default;
    constexpr explicit Date(double serial) : serial_(serial) {}

    constexpr double Serial() const { return serial_; }
    constexpr bool IsZero() const { return serial_ == 0.0; }

    friend constexpr auto operator<=>(Date a, Date b) = default;
    friend constexpr bool operator==(Date a, Date b) = default;

 private:
    double serial_ = 0.0;
};

}  // namespace akarix
