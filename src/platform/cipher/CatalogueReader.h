#pragma once

#include <sqlcipher/sqlite3.h>

#include "platform/dialect/Schema.h"

namespace akarix {

/// The tables of an open file.
Catalogue ReadCatalogue(sqlite3* connection);

}  // namespace akarix
