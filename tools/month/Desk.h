#pragma once

#include "clerk/Clerk.h"
#include "month/Album.h"
#include "month/Failure.h"
#include "month/Options.h"
#include "month/TypedMonth.h"
#include "month/WorkFolder.h"

namespace akarix::month {

/// A customer of the post office whose branch was keyed with three digits.
struct ShortBranch {
    std::int32_t deal = 0;
    int claim = 0;  ///< his place on the disk, from 0
    QString branch{};
};

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
    ShortBranch shortBranch{};
    int refusedDisks = 0;  ///< by the check, before they went out
    int lateSlips = 0;
    int endedLeases = 0;
};

}  // namespace akarix::month
