#pragma once

#include <QString>

#include "platform/runtime/Progress.h"
#include "platform/runtime/Variant.h"
#include "values/BillingMonth.h"

namespace akarix {

// The monthly receivable ledger TtoD: one row for a customer and a month. Months are a western year and 1 to
// 12, amounts are yen. A store error ends a routine where it stands; what was done stays, and running it
// again completes it.

/// Rolls the month's readings, lease slips, sales and payments into the ledger and remembers the creation
/// date as the month's closing date. Raises 6 for a lease fee or a number of rows above 32,767; 32755 when it
/// is stopped between two customers, which it may be until the sums are drawn.
void BuildMonthLedger(BillingMonth month, Date creation, Progress& progress = Progress::Silent());
/// Gives every customer a row of the month, with the balance carried in unless it was set by hand. Months
/// after it keep what they have. Raises 6 above 32,767 customers. Not to be stopped: the month counts as
/// closed.
void CarryForwardMonth(BillingMonth month, Progress& progress = Progress::Silent());
/// The next free number of a sales slip; raises 6 past 32 bits.
std::int32_t NextDudNo();
/// What a ledger row begins with; both 0 when it is missing.
struct LedgerHead {
    Currency zenkaiGaku;
    int syokiFlg = 0;
};
LedgerHead ReadLedgerHead(std::int32_t deal, BillingMonth month);
/// What the latest earlier row carries out, however far back; Empty when there is none.
Variant PriorBalance(std::int32_t deal, BillingMonth month);
/// The creation date of the month's last run as text; empty when it was never billed.
QString ReadClosingDate(BillingMonth month);

}  // namespace akarix
