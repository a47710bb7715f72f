#pragma once

#include "platform/dialect/Kind.h"
#include "platform/dialect/StoreValue.h"

namespace akarix {

enum class Storage { Whole, Real, Text };

/// What the values of a kind of column are stored as, in how many bytes, and the range of its numbers. Any
/// number of 64 bits is a Currency, so its range is not told.
struct ColumnForm {
    FieldType type;
    Storage storage;
    int bytes;
    double low;
    double high;
};
const ColumnForm& FormOf(FieldType type);

/// The most characters a text column holds; the classic 255 when none was named.
int TextWidth(const ColumnDef& column);

/// The number of the error that a value on its way into the column meets: 6 out of range, 3163 too long, 3315
/// an empty text, 3421 another kind, 3314 Null where one is required. 0 when it fits.
int MisfitOf(const ColumnDef& column, const StoreValue& value);

/// A value of any kind as the column stores it: numbers from text and text from numbers, dates from both,
/// rounded half to even. Raises as MisfitOf tells.
StoreValue FittedTo(const ColumnDef& column, Kind kind, const StoreValue& value);

/// A value that is a number, as a double.
double RealOf(Kind kind, const StoreValue& value);
/// A whole number scaled as Currency is; what does not fit in 64 bits becomes a double.
StoreValue ScaledWhole(std::int64_t whole);

}  // namespace akarix
