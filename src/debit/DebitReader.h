#pragma once

#include <QString>

#include "debit/DebitRequest.h"

namespace akarix {

// Reading back a result disk: asks, books one payment for each debited record, logs the disk and tells. The
// log keeps a bank's disk of a month from being booked twice; it is written at the end alone, so that a disk
// whose reading was broken off can be read again, and books what it had booked once more.

/// \param bankCode as typed; more than 16 bits raise 6
void ReadBankResult(const QString& bankCode, const ShowProgress& progress);
void ReadPostResult(const ShowProgress& progress);

}  // namespace akarix
