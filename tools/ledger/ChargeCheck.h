#pragma once

#include <vector>

#include "ledger/Difference.h"

namespace akarix {

class Database;

/// Works out use and charge of a month's readings again from meters and tariff bands. A difference is no
/// fault by itself: a charge may have been overtyped, or the tariff changed after the reading. Rows that were
/// listed and never read are passed over. Ordered by customer.
std::vector<Difference> CheckCharges(Database& db, BillingMonth month);

}  // namespace akarix
