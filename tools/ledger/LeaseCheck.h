#pragma once

#include <QString>
#include <cstdint>
#include <vector>

#include "values/BillingMonth.h"

namespace akarix {

class Database;

/// What is wrong with a month's lease slips.
enum class LeaseFault {
    Missing,       ///< a leased thing is not on the slip, or there is no slip
    NotLeased,     ///< a line for something that is leased neither today nor in the months beside
    LineDoubled,   ///< the same thing twice on a slip
    SlipDoubled,   ///< the customer has more than one lease slip in the month
    NumberShared,  ///< the slip's number stands for another customer or month as well
    UnknownLine    ///< a line on the slip that no lease makes
};

struct LeaseFinding {
    std::int32_t deal = 0;
    BillingMonth month;
    LeaseFault fault = LeaseFault::Missing;
    QString line;           ///< the name of the line
    std::int32_t slip = 0;  ///< 0: there is none
};

/// Looks through the lease slips of the billed months from a month on. A customer's
/// marks tell of today alone; what he leased in an earlier month is told by the months beside it. Months of
/// his that are purged are passed over. By month and customer.
std::vector<LeaseFinding> CheckLeases(Database& db, BillingMonth from);

}  // namespace akarix
