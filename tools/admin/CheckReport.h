#pragma once

#include <QString>
#include <map>
#include <vector>

#include "ledger/LeaseCheck.h"
#include "ledger/LedgerProof.h"
#include "ledger/ReadingCheck.h"

namespace akarix::admin {

using CustomerNames = std::map<std::int32_t, QString>;

/// What a dealer reads of the checks: a line of sums, and a table of what was found.
QString LedgerReport(const LedgerProof& proof, const CustomerNames& names);
QString LeaseReport(const std::vector<LeaseFinding>& findings, const CustomerNames& names);
QString ReadingReport(const std::vector<DoubtfulReading>& doubtful, BillingMonth from,
                      const CustomerNames& names);

}  // namespace akarix::admin
