#pragma once

#include <sqlcipher/sqlite3.h>
#include <QString>

namespace akarix {

/// The table that repeats the schema inside the file, and the word in each of its rows by which salvage
/// knows them on a stray page.
constexpr const char* kSchemaCopyTable = "_map";
constexpr const char* kSchemaCopyTag = "akarix-map";

/// Writes the copy anew, on fresh pages: behind the tables, so that losing the head of the file does not
/// lose it too. Inside the transaction of the change it follows.
void RefreshSchemaCopy(sqlite3* connection);

}  // namespace akarix
