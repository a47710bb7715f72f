#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "month/DebitFile.h"
#include "month/MeterBook.h"

namespace akarix::month {

/// Whose a document is and what it comes to.
struct DocumentNote {
    std::int32_t deal = 0;
    std::int64_t yen = 0;
    bool nextMonth = false;  ///< counts for the month after
    friend bool operator==(const DocumentNote&, const DocumentNote&) = default;
};
using DocumentNotes = std::map<std::int32_t, DocumentNote>;  ///< by number

/// What was typed through the screens, and must be found in the store again.
struct TypedMonth {
    std::map<std::int32_t, MeterNote> readings{};  ///< by customer
    DocumentNotes slips{};
    DocumentNotes payments{};  ///< those the debit result has booked too
    DebitClaims debits{};      ///< as the post office gave them back
    std::int64_t acuFee = 0;   ///< yen, of a month's lease
    std::int64_t alarmFee = 0;
};

}  // namespace akarix::month
