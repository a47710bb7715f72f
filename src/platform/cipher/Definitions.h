#pragma once

#include <sqlcipher/sqlite3.h>

#include "platform/dialect/Plan.h"

namespace akarix {

/// Carries a definition out inside a transaction of the caller. What is already so, or is not there to be
/// changed, raises and leaves all as it was.
void Define(sqlite3* connection, const Catalogue& catalogue, const Plan& plan);

/// CREATE TABLE of a definition, by a name of the caller's choice.
QByteArray CreateTableText(const TableDef& table, const QString& name);

}  // namespace akarix
