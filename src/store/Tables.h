#pragma once

#include <vector>

#include "platform/jet/Schema.h"

namespace akarix {

/// Every table of a store as it is delivered today, scratch tables and the columns of later years included.
const std::vector<TableDef>& Tables();

/// The CREATE TABLE of a table in the store's dialect: columns, defaults and unique keys.
QString CreateTableText(const TableDef& table);

}  // namespace akarix
