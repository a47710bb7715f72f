#pragma once

#include <QString>

#include "platform/runtime/Currency.h"
#include "platform/runtime/Date.h"
#include "store/Consignor.h"

namespace akarix {

struct DebitRow;

// The records of a direct-debit request, 120 characters each without the line end. A field is cut and filled
// by characters, so that a full-width character makes its record longer on the disk; a number that is too
// long loses its high digits.

/// The consignor's texts at the widths of the header.
Consignor FitBankConsignor(const Consignor& consignor);
Consignor FitPostConsignor(const Consignor& consignor);

/// \param consignor at the widths of the header
QString BankHeader(const Consignor& consignor, Date creation);
QString BankData(const DebitRow& row, Currency amount);
QString BankTrailer(int count, Currency total);

/// The second date on which the post office tries what failed, two characters each; blank without a contract.
struct RetransferDay {
    QString month;
    QString day;
};

QString PostHeader(const Consignor& consignor, Date creation, const RetransferDay& again);
/// An office number below 1000 has no form of its own: behind it the record breaks into two lines.
QString PostData(const DebitRow& row, const Consignor& consignor, Currency amount);
QString PostTrailer(int count, Currency total);

/// The end record of both.
QString DebitEnd();

}  // namespace akarix
