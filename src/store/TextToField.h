#pragma once

#include <QString>

#include "platform/dao/Field.h"

namespace akarix {

/// Turns the text of a screen field into a value that a column takes; the value stays Empty for a kind that
/// no screen writes. Raises 13 and 6 as the conversions do.
void TextToField(Variant& value, FieldType type, int size, const QString& text);
void TextToField(Variant& value, const Field& field, const QString& text);

}  // namespace akarix
