#pragma once

namespace akarix::sample {

/// Use of each month against the average of the year, in percent; January first.
constexpr int kSeason[12] = {150, 155, 135, 110, 90, 75, 60, 50, 60, 80, 105, 130};

}  // namespace akarix::sample
