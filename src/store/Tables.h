#pragma once

#include <QStringList>
#include <vector>

#include "platform/dialect/Schema.h"

namespace akarix {

/// Every table of a store as it is delivered today, scratch tables and the columns of later years included.
const std::vector<TableDef>& Tables();

/// CREATE INDEX statements beside the keys: the billing run and the screens ask for a customer or a month.
const QStringList& IndexStatements();

}  // namespace akarix
