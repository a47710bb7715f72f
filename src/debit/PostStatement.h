#pragma once

#include <QString>

#include "platform/runtime/Date.h"
#include "values/BillingMonth.h"

namespace akarix {

/// What the post office's disk of a month will ask for, on the sheet "郵便局口座振替明細表". A line shows the
/// amount that goes on the disk; the sums of the pages and of the whole are those of the balances, and may be
/// more than the disk asks for where customers have agreed on a fixed amount.
///
/// Asks for the printer, then prints; no rows are told.
/// \param creation the creation date as the clerk has typed it
/// \param opened the day on the paper
void PrintPostStatement(BillingMonth month, const QString& creation, Date opened);

}  // namespace akarix
