#include "platform/dialect/Definition.h"

#include "platform/dialect/ColumnValue.h"
#include "platform/dialect/StoreError.h"

namespace akarix {
namespace {

const ColumnDef& Existing(const TableDef& table, const QString& name, int error) {
    const int index = table.indexOf(name);
    if (index < 0) throw StoreError(error, name);
    return table.at(index);
}

bool SameKind(const ColumnDef& a, const ColumnDef& b) {
    return a.type == b.type && (a.type != FieldType::Text || TextWidth(a) == TextWidth(b));
}

}  // namespace

void CheckDefinition(Definition& definition, const Catalogue& catalogue) {
    const TablePtr table = catalogue.find(definition.table.name);
    ColumnDef& column = definition.column;
    if (definition.kind == Definition::Kind::CreateTable) {
        if (table) throw StoreError(3010, table->name);
        return;
    }
    if (!table) throw StoreError(3371, definition.table.name);
    definition.table.name = table->name;
    if (definition.kind == Definition::Kind::AddColumn) {
        if (table->indexOf(column.name) >= 0) throw StoreError(3380, column.name);
        // The rows that are there would have no value for it.
        if (column.required) throw StoreError(3314, column.name);
    } else if (definition.kind == Definition::Kind::AlterColumn) {
        const ColumnDef& present = Existing(*table, column.name, 3383);
        if (SameKind(present, column)) throw StoreError(3380, column.name);
        column.name = present.name;
    }
    for (QString& indexed : definition.indexed)
        indexed = Existing(*table, indexed, 3409).name;
}

}  // namespace akarix
