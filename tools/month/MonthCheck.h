#pragma once

#include <cstdint>
#include <map>

#include "month/MeterBook.h"

namespace akarix {
class Database;
}

namespace akarix::month {

/// Raises Failure, telling every difference, unless the month's readings are the ones typed and its charges
/// and ledger are what a recomputation of their own gives, to the yen.
void checkMonth(Database& db, int year, int month, const std::map<std::int32_t, MeterNote>& typed);

}  // namespace akarix::month
