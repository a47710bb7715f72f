#pragma once

#include <QString>
#include <cstdint>

#include "month/TypedMonth.h"

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
    int newItem = 0;
    std::int64_t newItemPrice = 0;  ///< yen
    TypedMonth typed{};
    int invoicePages = 0;
};

}  // namespace akarix::month
