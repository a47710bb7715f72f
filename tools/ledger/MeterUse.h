#pragma once

#include <cstdint>

namespace akarix {

// In 1/10,000 of a unit.

/// What was used between two readings. A meter that was exchanged tells with an old end other than 0.
std::int64_t MeterUse(std::int64_t before, std::int64_t oldEnd, std::int64_t newStart, std::int64_t now);

/// To a multiple of the step, a half going away from zero, as a shown number is rounded.
std::int64_t RoundShown(std::int64_t value, std::int64_t step);

}  // namespace akarix
