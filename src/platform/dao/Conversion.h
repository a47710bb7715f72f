#pragma once

#include "platform/dialect/ColumnValue.h"
#include "platform/runtime/Variant.h"

namespace akarix {

/// A stored value as the run time's value of the kind.
Variant VariantOf(FieldType type, const StoreValue& value);

/// A value as a column stores it, converted where it can be: numbers from text and text from numbers, dates
/// from both. Null and Empty are Null. Raises 3421 when it cannot be, 3315 for a text of no length, 3163 for
/// one that is too wide.
StoreValue StoredAs(const ColumnDef& column, const Variant& value);

}  // namespace akarix
