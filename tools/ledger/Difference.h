#pragma once

#include <QString>
#include <cstdint>

#include "values/BillingMonth.h"

namespace akarix {

/// One figure that is not what its sources say. Amounts are in 1/10,000 of their unit.
struct Difference {
    std::int32_t deal = 0;
    BillingMonth month;
    QString column;  ///< "行" when the whole row is missing
    std::int64_t expected = 0;
    std::int64_t found = 0;
};

/// "1500", "-0.5"
QString AmountText(std::int64_t scaled);

/// "得意先 12 2011/3 UGaku: 正 1500 誤 1499"
QString Describe(const Difference& difference);

}  // namespace akarix
