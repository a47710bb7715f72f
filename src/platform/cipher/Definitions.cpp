#include "platform/cipher/Definitions.h"

#include "platform/cipher/Identifier.h"
#include "platform/cipher/Sqlite.h"
#include "platform/dao/Conversion.h"
#include "platform/dialect/ColumnKind.h"
#include "platform/dialect/StoreError.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

QByteArray QuotedList(const QStringList& names) {
    QByteArray text;
    for (const QString& name : names)
        text += (text.isEmpty() ? "" : ",") + Quoted(name);
    return text;
}

const TableDef& Existing(const Catalogue& catalogue, const QString& name) {
    const TableDef* table = catalogue.find(name);
    if (!table) throw StoreError(3371, name);
    return *table;
}

void CreateTable(sqlite3* connection, const Catalogue& catalogue, const TableDef& table) {
    if (catalogue.find(table.name)) throw StoreError(3010, table.name);
    Run(connection, CreateTableText(table, table.name));
}

void AddColumn(sqlite3* connection, const TableDef& table, const ColumnDef& column) {
    if (table.indexOf(column.name) >= 0) throw StoreError(3380, column.name);
    if (column.required) {
        // The rows that are there would have no value for it.
        throw StoreError(3314, column.name);
    }
    Run(connection, "ALTER TABLE " + Quoted(table.name) + " ADD COLUMN " + ColumnDeclaration(column));
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
            const FieldType present = from.columns[static_cast<std::size_t>(from.indexOf(column.name))].type;
            const StoreValue value = ColumnValue(read.get(), place);
            Bind(write.get(), place + 1, StoredAs(column, VariantOf(present, value)));
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

int ExistingColumn(const TableDef& table, const QString& name) {
    const int index = table.indexOf(name);
    if (index < 0) throw StoreError(3383, name);
    return index;
}

void AlterColumn(sqlite3* connection, const TableDef& table, ColumnDef column) {
    TableDef altered = table;
    ColumnDef& present = altered.columns[static_cast<std::size_t>(ExistingColumn(table, column.name))];
    if (present.type == column.type &&
        (column.type != FieldType::Text || TextWidth(present) == TextWidth(column)))
        throw StoreError(3380, column.name);
    present.type = column.type;
    present.size = column.size;
    Rebuild(connection, table, altered);
}

void CreateIndex(sqlite3* connection, const TableDef& table, const IndexDef& index) {
    for (const QString& column : index.columns)
        ExistingColumn(table, column);
    Run(connection, "CREATE INDEX " + Quoted(index.name) + " ON " + Quoted(table.name) + '(' +
                        QuotedList(index.columns) + ')');
}

}  // namespace

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

void Define(sqlite3* connection, const Catalogue& catalogue, const Plan& plan) {
    switch (plan.definition) {
        case Plan::Definition::None:
            return;
        case Plan::Definition::CreateTable:
            CreateTable(connection, catalogue, plan.table);
            return;
        case Plan::Definition::AddColumn:
            AddColumn(connection, Existing(catalogue, plan.table.name), plan.column);
            return;
        case Plan::Definition::AlterColumn:
            AlterColumn(connection, Existing(catalogue, plan.table.name), plan.column);
            return;
        case Plan::Definition::CreateIndex:
            CreateIndex(connection, Existing(catalogue, plan.table.name), plan.index);
            return;
    }
}

}  // namespace akarix
