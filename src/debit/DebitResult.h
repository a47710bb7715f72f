#pragma once

#include <QString>
#include <cstdint>

#include "platform/runtime/Currency.h"
#include "platform/runtime/Date.h"

namespace akarix {

/// The debit day of a result file's header. The header has no year: its month is this year's or, where that
/// is still to come, last year's. Raises 13 when it holds no date.
Date ResultDate(const QString& header, Date today);

/// What a result file says of one account. A customer is known by the number alone.
struct DebitResult {
    std::int32_t Deal = 0;
    int code = 0;  ///< 0 is debited; a blank counts as 0
    Currency amount;
};

/// True for the trailer and the end record.
bool EndsResults(const QString& record);
/// A record that is too short reads as 0 where it ends. Raises 6 or 13 for what is no number.
DebitResult ReadResult(const QString& record);

}  // namespace akarix
