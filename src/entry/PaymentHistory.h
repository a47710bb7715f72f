#pragma once

#include <cstdint>

#include "values/BillingMonth.h"

namespace akarix {

class FlexGrid;

/// The month up to which the ledger reaches, of whichever customer: where a history ends. Reads the whole
/// ledger.
BillingMonth LatestLedgerMonth();

/// Gives the grid its six columns and empties it down to its head row.
void EmptyHistory(FlexGrid& list);

/// A customer's ledger months from the given one on, in the store's order, with the running balance. The
/// balance carried in stands before the first of them.
void ShowLedgerHistory(FlexGrid& list, std::int32_t deal, BillingMonth month);

/// The charges of the customer's ledger months from the given one on, merged with each payment line of those
/// billing months under the month of its own date. A year and month stand where the year changes.
void ShowPaymentHistory(FlexGrid& list, std::int32_t deal, BillingMonth month);

}  // namespace akarix
