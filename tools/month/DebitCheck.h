#pragma once

#include <QStringList>

#include "month/DebitFile.h"

namespace akarix {
class Database;
}

namespace akarix::month {

constexpr int kDebitDay = 5;  ///< of the month, as the dealer has agreed with banks and post office

/// What a bank is to be asked for after a month, worked out from the ledger; none of it is debited yet.
DebitClaims ClaimsAfter(Database& db, int bank, int year, int month);

/// What a disk that came back says and the month's payments, ledger and log of disks do not, and the reverse.
QStringList CompareDebits(Database& db, int year, int month, const DebitClaims& claims);

}  // namespace akarix::month
