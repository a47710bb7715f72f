#include "platform/cipher/CatalogueReader.h"

#include <algorithm>

#include "platform/cipher/ColumnDeclaration.h"
#include "platform/cipher/Sqlite.h"

namespace akarix {
namespace {

QString TextAt(sqlite3_stmt* statement, int index) {
    const StoreValue value = ColumnValue(statement, index);
    const auto* text = std::get_if<QString>(&value);
    return text ? *text : QString();
}

std::vector<QString> TableNames(sqlite3* connection) {
    const Statement query = Prepare(connection,
                                    "SELECT name FROM sqlite_master WHERE type='table' AND "
                                    "substr(name,1,7)<>'sqlite_' AND substr(name,1,4)<>'_map'");
    std::vector<QString> names;
    while (Step(connection, query.get()))
        names.push_back(TextAt(query.get(), 0));
    return names;
}

QStringList KeyColumns(sqlite3* connection, const QString& index) {
    const Statement query = Prepare(connection, "PRAGMA index_info(" + Quoted(index) + ')');
    QStringList columns;
    while (Step(connection, query.get()))
        columns.append(TextAt(query.get(), 2));
    return columns;
}

// The keys that were made with the table.
std::vector<QStringList> UniqueKeys(sqlite3* connection, const QString& table) {
    constexpr int kName = 1;
    constexpr int kUnique = 2;
    constexpr int kOrigin = 3;
    const Statement query = Prepare(connection, "PRAGMA index_list(" + Quoted(table) + ')');
    std::vector<QStringList> keys;
    while (Step(connection, query.get()))
        if (sqlite3_column_int(query.get(), kUnique) != 0 && TextAt(query.get(), kOrigin) == u"u")
            keys.push_back(KeyColumns(connection, TextAt(query.get(), kName)));
    // The engine lists the last made first.
    std::reverse(keys.begin(), keys.end());
    return keys;
}

}  // namespace

Catalogue ReadCatalogue(sqlite3* connection) {
    Catalogue catalogue;
    for (const QString& name : TableNames(connection)) {
        TableDef table;
        table.name = name;
        const Statement query = Prepare(connection, "PRAGMA table_info(" + Quoted(name) + ')');
        while (Step(connection, query.get())) {
            ColumnDef column = ColumnOfDeclaredType(TextAt(query.get(), 2)).value_or(ColumnDef{});
            column.name = TextAt(query.get(), 1);
            column.required = sqlite3_column_int(query.get(), 3) != 0;
            column.zeroDefault = TextAt(query.get(), 4) == u"0";
            table.columns.push_back(std::move(column));
        }
        table.uniqueKeys = UniqueKeys(connection, name);
        catalogue.put(std::move(table));
    }
    return catalogue;
}

}  // namespace akarix
