#pragma once

namespace akarix {
class Database;
}

namespace akarix::month {

struct TypedMonth;

/// Raises Failure, telling every difference, unless the month's readings, slips and payments are the ones
/// typed and its charges and ledger are what a recomputation of their own gives, to the yen.
void CheckMonth(Database& db, int year, int month, const TypedMonth& typed);

}  // namespace akarix::month
