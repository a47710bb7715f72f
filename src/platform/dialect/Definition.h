#pragma once

#include "platform/dialect/Schema.h"

namespace akarix {

/// What CREATE TABLE, ALTER TABLE and CREATE INDEX ask for.
struct Definition {
    enum class Kind { CreateTable, AddColumn, AlterColumn, CreateIndex };

    Kind kind = Kind::CreateTable;
    TableDef table;         ///< CreateTable: all of it; otherwise its name
    ColumnDef column = {};  ///< AddColumn, AlterColumn: the new one
    QString index = {};     ///< CreateIndex
    QStringList indexed = {};
};

/// Spells the names of a definition as the catalogue does. Raises for what is already so or is not there to
/// be changed: 3010 (table exists), 3371 (no such table), 3380 (the column exists, or is of that kind
/// already), 3383 (no such column), 3409 (an index on a column that is not there), 3314 (a new column that
/// needs a value).
void CheckDefinition(Definition& definition, const Catalogue& catalogue);

}  // namespace akarix
