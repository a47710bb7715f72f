#pragma once

#include <QString>
#include <optional>

#include "values/BillingMonth.h"

namespace akarix::admin {

/// "2011/3" of the command line; nothing when it is no month.
std::optional<BillingMonth> ReadMonth(const QString& text);
/// "2011/03"
QString MonthText(BillingMonth month);

}  // namespace akarix::admin
