#pragma once

#include <QString>

#include "platform/runtime/Variant.h"

namespace akarix {

/// Trim(Str(value)): the plain text of a number, as it goes into SQL.
QString NumStr(const Variant& value);
/// Format(value, mask) with 20 blanks in front, then the last Len(mask) characters.
QString PadFormat(const Variant& value, const QString& mask);
/// The text with blanks behind it, cut to the width.
QString PadText(const QString& text, int width);

}  // namespace akarix
