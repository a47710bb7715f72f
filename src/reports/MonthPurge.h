#pragma once

#include <QString>

namespace akarix {

/// Deletes a month's readings, sales, payments and ledger rows, of all customers or of one. Texts of numbers.
void PurgeMonth(const QString& year, const QString& month, const QString& customer = {});

}  // namespace akarix
