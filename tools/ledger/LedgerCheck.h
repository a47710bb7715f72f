#pragma once

#include <vector>

#include "ledger/Difference.h"

namespace akarix {

class Database;

/// Works out one month's ledger again from readings, slips, payments and the rows before it, with its own
/// reading and its own integers, and tells where the stored rows differ. What the run leaves alone is left
/// alone here: gas and payments of a customer without source rows, and a balance that was set by hand.
/// Ordered by customer.
std::vector<Difference> CheckLedgerMonth(Database& db, int nendo, int getudo);

}  // namespace akarix
