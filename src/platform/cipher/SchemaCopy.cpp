#include "platform/cipher/SchemaCopy.h"

#include "platform/cipher/Sqlite.h"

namespace akarix {

void RefreshSchemaCopy(sqlite3* connection) {
    const QByteArray table = kSchemaCopyTable;
    const QByteArray next = table + "_next";
    Run(connection, "CREATE TABLE " + next + "(tag TEXT, name TEXT, root INTEGER, sql TEXT)");
    Run(connection, "INSERT INTO " + next + " SELECT '" + kSchemaCopyTag +
                        "', name, rootpage, sql FROM sqlite_master WHERE substr(name,1,4)<>'" + table + "'");
    Run(connection, "DROP TABLE IF EXISTS " + table);
    Run(connection, "ALTER TABLE " + next + " RENAME TO " + table);
}

}  // namespace akarix
