#pragma once

#include <QByteArray>
#include <QString>
#include <array>
#include <vector>

#include "debit/DebitLayout.h"

namespace akarix::admin {

/// Parts a file at CR LF, CR or LF; a file without any line end every 120 bytes. An end mark 0x1A ends it.
std::vector<QByteArray> SplitDebitRecords(const QByteArray& file);

struct DebitTally {
    qint64 count = 0;
    qint64 amount = 0;

    friend bool operator==(const DebitTally&, const DebitTally&) = default;
};

/// Something in which a file departs from its layout.
struct DebitDeparture {
    qsizetype record;  ///< counted from 1; 0 for the file as a whole
    QString text;
};

struct DebitReport {
    DebitForm form = DebitForm::Bank;
    std::vector<QByteArray> records;  ///< of the file, the halves of a broken one put together
    bool isResult = false;            ///< the trailer or a code says that the bank has worked on it
    DebitTally all;
    std::array<DebitTally, 10> byResult;  ///< of the codes 0 to 9
    std::vector<DebitDeparture> departures;
};

/// \param records of the file, one at least
DebitReport CheckDebitFile(const std::vector<QByteArray>& records);

}  // namespace akarix::admin
