#pragma once

#include <QByteArray>
#include <optional>

#include "platform/dialect/Schema.h"

namespace akarix {

// How a kind of column stands in the file: a declared type that names the kind and gives the engine the right
// affinity, and a check that makes the engine itself refuse what the kind cannot hold, should anything get
// past MisfitOf.

/// The name, type, default and check of a column, as CREATE TABLE and ADD COLUMN take them.
QByteArray ColumnDeclaration(const ColumnDef& column);

/// Kind and width back from a declared type ("TEXT(30)"); none when the file was not made by this store.
std::optional<ColumnDef> ColumnOfDeclaredType(const QString& declared);

}  // namespace akarix
