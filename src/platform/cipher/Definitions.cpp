#include "platform/cipher/Definitions.h"

#include "platform/cipher/ColumnDeclaration.h"
#include "platform/cipher/Sqlite.h"
#include "platform/dialect/ColumnValue.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

QByteArray QuotedList(const QStringList& names) {
    QByteArray text;
    for (const QString& name : names)
        text += (text.isEmpty() ? "" : ",") + Quoted(name);
    return text;
}

QByteArray CreateTableText(const TableDef& table, const QString& name) {
    QByteArray text = "CREATE TABLE " + Quoted(name) + '(';
    const QStringList key = table.uniqueKeys.empty() ? QStringList() : table.uniqueKeys.front();
    const char* comma = "";
    for (const ColumnDef& column : table.columns) {
        ColumnDef declared = column;
        declared.required = column.required || key.contains(column.name, Qt::CaseInsensitive);
        text += comma + ColumnDeclaration(declared);
        comma = ",";
    }
    for (const QStringList& unique : table.uniqueKeys)
        text += ",UNIQUE(" + QuotedList(unique) + ')';
    return text + ')';
}

// The texts of the indexes that stand beside the table and go with it when it is dropped.
std::vector<QByteArray> IndexTexts(sqlite3* connection, const QString& table) {
    const Statement query =
        Prepare(connection,
                "SELECT sql FROM sqlite_master WHERE type='index' AND sql IS NOT NULL AND "
                "tbl_name=?1");
    Bind(query.get(), 1, table);
    std::vector<QByteArray> texts;
    while (Step(connection, query.get()))
        texts.push_back(std::get<QString>(ColumnValue(query.get(), 0)).toUtf8());
    return texts;
}

// Copies all rows, with their numbers, into another form of the table; columns go by name.
void CopyRows(sqlite3* connection, const TableDef& from, const TableDef& to, const QString& target) {
    QByteArray places = "?1";
    QStringList names;
    for (const ColumnDef& column : to.columns) {
        names.append(column.name);
        places += ",?" + QByteArray::number(names.size() + 1);
    }
    const QByteArray columns = "rowid," + QuotedList(names);
    const Statement read =
        Prepare(connection, "SELECT " + columns + " FROM " + Quoted(from.name) + " ORDER BY rowid");
    const Statement write =
        Prepare(connection, "INSERT INTO " + Quoted(target) + '(' + columns + ") VALUES(" + places + ')');
    while (Step(connection, read.get())) {
        Bind(write.get(), 1, ColumnValue(read.get(), 0));
        for (std::size_t i = 0; i < to.columns.size(); ++i) {
            const int place = static_cast<int>(i) + 1;
            const ColumnDef& column = to.columns[i];
            const Kind present = KindOf(from.at(from.indexOf(column.name)).type);
            Bind(write.get(), place + 1, FittedTo(column, present, ColumnValue(read.get(), place)));
        }
        Run(connection, write.get());
    }
}

// The engine changes no column in place: the table is made anew beside the old one and takes its name.
void Rebuild(sqlite3* connection, const TableDef& table, const TableDef& altered) {
    const QString scratch = table.name + u"__altered"_s;
    const std::vector<QByteArray> indexes = IndexTexts(connection, table.name);
    Run(connection, CreateTableText(altered, scratch));
    CopyRows(connection, table, altered, scratch);
    Run(connection, "DROP TABLE " + Quoted(table.name));
    Run(connection, "ALTER TABLE " + Quoted(scratch) + " RENAME TO " + Quoted(table.name));
    for (const QByteArray& text : indexes)
        Run(connection, text);
}

void AlterColumn(sqlite3* connection, const TableDef& table, const ColumnDef& column) {
    TableDef altered = table;
    ColumnDef& present = altered.columns[static_cast<std::size_t>(table.indexOf(column.name))];
    present.type = column.type;
    present.size = column.size;
    Rebuild(connection, table, altered);
}

}  // namespace

void Define(sqlite3* connection, const Catalogue& catalogue, const Definition& definition) {
    const QString& name = definition.table.name;
    switch (definition.kind) {
        case Definition::Kind::CreateTable:
            Run(connection, CreateTableText(definition.table, name));
            return;
        case Definition::Kind::AddColumn:
            Run(connection,
                "ALTER TABLE " + Quoted(name) + " ADD COLUMN " + ColumnDeclaration(definition.column));
            return;
        case Definition::Kind::AlterColumn:
            AlterColumn(connection, *catalogue.find(name), definition.column);
            return;
        case Definition::Kind::CreateIndex:
            Run(connection, "CREATE INDEX " + Quoted(definition.index) + " ON " + Quoted(name) + '(' +
                                QuotedList(definition.indexed) + ')');
            return;
    }
}

}  // namespace akarix
