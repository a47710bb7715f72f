#pragma once

#include "debit/DebitRecords.h"
#include "debit/DebitRequest.h"

namespace akarix {

/// The request file of the post office for a month, with its covering sheet: asks, writes, tells. Books
/// nothing; the same file can be made again.
/// \param again what the header says of a second try; taken from `typed` where that holds a date
/// \param typed the date of the second try as the clerk sees it; asked back unless it is empty
void WritePostDebit(const DebitWish& wish, RetransferDay& again, const QString& typed,
                    const ShowProgress& progress);

/// The records of the post office's request.
/// \param consignor at the widths of the header
RequestKind PostRequest(const Consignor& consignor, Date creation, const RetransferDay& again);

}  // namespace akarix
