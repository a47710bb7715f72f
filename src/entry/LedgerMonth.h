#pragma once

#include <compare>
#include <cstdint>

namespace akarix {

/// A billing month, in the order of time; 0 and 0 where there is none.
struct LedgerMonth {
    std::int16_t Nendo = 0;
    std::int16_t Getudo = 0;

    friend auto operator<=>(const LedgerMonth&, const LedgerMonth&) = default;
};

}  // namespace akarix
