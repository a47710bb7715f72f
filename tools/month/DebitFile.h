#pragma once

#include <QString>
#include <cstdint>
#include <vector>

namespace akarix::month {

/// What is asked of a customer's account, and what came of it.
struct DebitClaim {
    std::int32_t deal = 0;
    std::int64_t yen = 0;
    bool debited = false;
    friend bool operator==(const DebitClaim&, const DebitClaim&) = default;
};
using DebitClaims = std::vector<DebitClaim>;  ///< in the order of the disk

struct DebitFigures {
    std::int64_t asked = 0;
    std::int64_t askedYen = 0;
    std::int64_t debited = 0;
    std::int64_t debitedYen = 0;
};

DebitFigures TotalsOf(const DebitClaims& claims);

// The post office's disk, read by its table of places and with none of the product's other routines.

/// Raises Failure when the file cannot be read, or its records do not come to what its trailer says.
DebitClaims ReadDebitFile(const QString& path);
/// What the post office does with the disk: a result on each record. Most are debited, some have no money,
/// and one is left blank, which counts as debited.
void MarkDebitFile(const QString& path);

}  // namespace akarix::month
