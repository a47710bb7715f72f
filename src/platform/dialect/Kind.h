#pragma once

#include "platform/dialect/Schema.h"

namespace akarix {

/// The kinds an expression of the dialect can have. What a kind is stored as: StoreValue.h.
enum class Kind { Null, Boolean, Integer, Currency, Double, Date, Text };

Kind KindOf(FieldType type);
/// The column type in which a value of a kind is delivered when no stored column stands behind it.
FieldType TypeOf(Kind kind);

}  // namespace akarix
