#pragma once

#include <QString>

#include "debit/DebitRequest.h"

namespace akarix {

// The covering sheet that goes to the bank with the disk. The clerk chooses the printer; cancelled there, the
// sheet is left out without a word.

/// \param consignor at the widths of the file's header
void PrintBankTotalSheet(const Consignor& consignor, const DebitTotals& totals);
/// \param again the date of the second try as the clerk sees it
void PrintPostTotalSheet(const Consignor& consignor, const DebitTotals& totals, const QString& again);

}  // namespace akarix
