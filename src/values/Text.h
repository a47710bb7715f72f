#pragma once

#include <QString>

#include "platform/runtime/Variant.h"

namespace akarix {

/// Null gives the empty text, anything else its trimmed text.
QString NullToEmpty(const Variant& value);
/// Null gives 0 (Integer), anything else comes back unchanged.
Variant NullToZero(const Variant& value);
/// The empty text gives one blank.
QString EmptyToBlank(const QString& text);

/// True when the value is not Null and its trimmed text is not empty.
bool HasText(const Variant& value);
/// The first bytes of the text in code page 932; a double-byte character split by the cut is lost.
QString CutBytes(const QString& text, int bytes);

}  // namespace akarix
