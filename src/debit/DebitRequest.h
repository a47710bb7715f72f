#pragma once

#include <QString>
#include <functional>

#include "platform/dao/Recordset.h"
#include "platform/runtime/Currency.h"
#include "platform/runtime/Date.h"
#include "values/BillingMonth.h"

namespace akarix {

struct Consignor;
struct DebitRow;

/// The file number of the debit disks.
constexpr int kDebitFile = 1;

/// What the clerk has typed for a request.
struct DebitWish {
    BillingMonth month;
    Date creation;
};

/// Shows where a run stands.
using ShowProgress = std::function<void(const QString& text)>;

struct DebitTotals {
    int count = 0;
    Currency total;
};

/// One kind of request: how its records look and what a row adds to the total.
struct RequestKind {
    QString header;
    std::function<QString(const DebitRow&, Currency amount)> data;
    std::function<Currency(const Recordset& row, Currency amount)> counted;
    std::function<QString(int count, Currency total)> trailer;
};

/// False when the consignor lacks what every request needs.
bool IsComplete(const Consignor& consignor);

/// Writes the whole file in place of an earlier one, and closes it. The rows must not be none (3021) nor more
/// than 32,767 (6). An error leaves the file open and what has been written in it.
DebitTotals WriteRequest(const QString& path, Recordset rows, const RequestKind& kind,
                         const ShowProgress& progress);

/// Tells the clerk what is on the disk, then that it is done.
void TellRequestDone(const DebitTotals& totals, const QString& done);

}  // namespace akarix
