#pragma once

#include <functional>
#include <vector>

#include "ledger/Difference.h"

namespace akarix {

class Database;

/// Why a figure of the ledger is not what its sources say, as far as the rows tell.
enum class Cause {
    HandSet,           ///< the balance carried in was set by hand over an earlier one
    NotBilledAgain,    ///< a reading, a slip or an earlier month changed after the month's run
    PaidAfterBilling,  ///< a payment came after the run that it should have been carried by
    DebitReadBack,     ///< the reading of a debit result put its amount in the place of all payments
    SourceGone,        ///< a figure stands whose reading or payments are no longer there
    Unknown
};

struct LedgerFinding {
    Difference difference;
    Cause cause = Cause::Unknown;
};

struct LedgerProof {
    int rows = 0;
    int months = 0;
    int unproved = 0;  ///< balances carried into the first month, whose past is purged
    int openings = 0;  ///< balances set by hand where the customer's rows begin
    std::vector<std::int32_t>
        purged;          ///< customers whose own first months are purged, and the balance with them
    BillingMonth first;  ///< of the ledger
    std::vector<BillingMonth> notYetBilled;  ///< only their payments are compared
    std::vector<LedgerFinding> findings;     ///< by month, then customer
};

/// Works out every row of the ledger again from readings, slips, payments and the row before it. A row is
/// held against the row before it as that one stands, so a fault is told once, where it is.
/// \param progress called before each month.
LedgerProof ProveLedger(
    Database& db, const std::function<void(BillingMonth)>& progress = [](BillingMonth) {});

}  // namespace akarix
