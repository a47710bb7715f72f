#pragma once

#include <sqlcipher/sqlite3.h>

#include "platform/jet/Schema.h"

namespace akarix {

/// The keys declared with the table, without those that unique indexes beside it add.
std::vector<QStringList> DeclaredKeys(sqlite3* connection, const QString& table);

/// The tables of an open file.
Catalogue ReadCatalogue(sqlite3* connection);

}  // namespace akarix
