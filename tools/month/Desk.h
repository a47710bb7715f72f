#pragma once

#include <QString>
#include <cstdint>
#include <map>

#include "month/MeterBook.h"

namespace akarix {
class Clerk;
}

namespace akarix::month {

class Album;
class WorkFolder;
struct Options;

/// What a step of the road works with, and what it leaves for the later ones.
struct Desk {
    const Options& options;
    const WorkFolder& folder;
    Clerk& clerk;
    Album& album;
    QString newTariff{};
    std::int32_t newCustomer = 0;
    std::map<std::int32_t, MeterNote> typed{};  ///< the readings by customer
};

}  // namespace akarix::month
