#pragma once

#include <sqlcipher/sqlite3.h>

#include "platform/dialect/Definition.h"

namespace akarix {

/// Carries a definition out that the catalogue allows (CheckDefinition), inside a transaction of the caller.
void Define(sqlite3* connection, const Catalogue& catalogue, const Definition& definition);

}  // namespace akarix
