#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "platform/dialect/Plan.h"
#include "platform/dialect/Schema.h"

namespace akarix {

/// How a kind of column stands in the file: a declared type that names the kind and gives the engine the
/// right affinity, and a check that makes the engine itself refuse what the kind cannot hold, should anything
/// get past MisfitOf.
///
/// The name, type, default and check of a column, as CREATE TABLE and ADD COLUMN take them.
QByteArray ColumnDeclaration(const ColumnDef& column);

/// Kind and width back from a declared type ("TEXT(30)"); none when the file was not made by this store.
std::optional<ColumnDef> ColumnOfDeclaredType(const QString& declared);

/// The most characters a text column holds; the classic 255 when none was named.
int TextWidth(const ColumnDef& column);

/// The bytes of a value of the kind; a text's width.
int KindSize(FieldType type, int textWidth);

/// Whether a stored value is one the column can have been given.
bool Fits(const ColumnDef& column, const StoreValue& value);

/// The number of the error that a value on its way into the column meets: 6 out of range, 3163 too long, 3315
/// an empty text, 3421 another kind, 3314 Null where one is required. 0 when it fits.
int MisfitOf(const ColumnDef& column, const StoreValue& value);

}  // namespace akarix
