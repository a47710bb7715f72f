#pragma once

#include <QString>
#include <cstdint>
#include <vector>

#include "values/BillingMonth.h"

namespace akarix {

class Database;

/// " WHERE Nendo=... AND Getudo=..."
QString WhereMonth(BillingMonth month);

/// The rows of a question as plain integers: an amount as 1/10,000 of its unit, a date as the number
/// of its day, any other number as itself, Null as 0. Columns in the order of the question.
std::vector<std::vector<std::int64_t>> ReadNumbers(Database& db, const QString& sql);

}  // namespace akarix
