#pragma once

#include <QString>

#include "platform/runtime/Progress.h"
#include "platform/runtime/Variant.h"
#include "store/CustomerMonth.h"

namespace akarix {

// The monthly receivable ledger TtoD: one row for a customer and a month. Months are a western year and 1 to
// 12, amounts are yen. A store error ends a routine where it stands; what was done stays, and running it
// again completes it.

/// Rolls the month's readings, lease slips, sales and payments into the ledger and remembers the creation
/// date as the month's closing date. Raises 6 for a lease fee or a number of rows above 32,767; 32755 when it
/// is stopped between two customers, which it may be until the sums are drawn.
void BuildMonthLedger(int nendo, int getudo, Date creation, Progress& progress = Progress::Silent());
/// Gives every customer a row of the month, with the balance carried in unless it was set by hand. Months
/// after it keep what they have. Raises 6 above 32,767 customers. Not to be stopped: the month counts as
/// closed.
void CarryForwardMonth(int nendo, int getudo, Progress& progress = Progress::Silent());
/// Set, not add: the gas charge, the sales, the payments of a customer's month.
void PutGGaku(int nendo, int getudo, std::int32_t deal, Currency amount);
void PutUGaku(int nendo, int getudo, std::int32_t deal, Currency amount);
void PutNGaku(int nendo, int getudo, std::int32_t deal, Currency amount);
/// Sets the balance carried in; a mark that it was set by hand stays.
void PutZenkaiGaku(std::int32_t deal, int nendo, int getudo, Currency amount);
/// Writes the customer's lease slip of the month anew, under its old number if it has one. A flag counts when
/// it is 1; the tariff pattern has no effect.
void MakeLeaseSlip(int nendo, int getudo, Date creation, std::int32_t deal, int acu, int keihou,
                   int tankaPtn);
/// The next free number of a sales slip; raises 6 past 32 bits.
std::int32_t NextDudNo();
/// Both 0 when the row is missing.
void ReadLedgerHead(std::int32_t deal, int nendo, int getudo, Currency& zenkaiGaku, int& syokiFlg);
/// What the latest earlier row carries out, however far back; Empty when there is none.
Variant PriorBalance(std::int32_t deal, int nendo, int getudo);
/// The creation date of the month's last run as text; empty when it was never billed.
QString ReadClosingDate(std::int16_t year, std::int16_t month);

}  // namespace akarix
