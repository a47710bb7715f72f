#pragma once

#include "debit/DebitRequest.h"

namespace akarix {

/// The request file of a bank for a month, with its covering sheet: asks, writes to the floppy, tells. Books
/// nothing; the same file can be made again.
/// \param bankCode as typed; more than 16 bits raise 6
void WriteBankDebit(const DebitWish& wish, const QString& bankCode, const ShowProgress& progress);

/// The records of a bank's request.
/// \param consignor at the widths of the header
RequestKind BankRequest(const Consignor& consignor, Date creation);

}  // namespace akarix
