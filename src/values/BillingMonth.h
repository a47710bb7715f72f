#pragma once

#include <QString>
#include <compare>
#include <cstdint>

#include "platform/runtime/Date.h"

namespace akarix {

/// A month of the books, in the order of time: a western year and 1 to 12; 0 and 0 where there is none. What
/// a clerk typed may be neither, and goes into a statement as it stands.
struct BillingMonth {
    int nendo = 0;
    int getudo = 0;

    static BillingMonth Of(Date date);

    /// Nendo*100+Getudo, as the store's statements compare months.
    int key() const { return nendo * 100 + getudo; }
    /// So many months later, or before.
    BillingMonth plus(int months) const;

    friend auto operator<=>(const BillingMonth&, const BillingMonth&) = default;
};

/// " WHERE Nendo =... AND   Getudo=...", as a statement on one month ends.
QString OfMonth(BillingMonth month);
/// " WHERE Deal  =... AND   Nendo =... AND   Getudo=...", as a statement on a customer's month ends.
QString OfCustomerMonth(std::int32_t deal, BillingMonth month);

}  // namespace akarix
