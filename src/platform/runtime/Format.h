#pragma once

#include <QString>

#include "platform/runtime/Variant.h"

namespace akarix {

/// The text of a value under a mask or a named format, by the classic rules: number masks with up to four
/// sections, date masks with eras, text masks. Works on decimal text and rounds half away from zero.
/// Null gives an empty text for a numeric mask and a text mask's second section where there is one.
QString Format(const Variant& value, const QString& mask);
/// Without a mask: the general text, without the leading blank of Str.
QString Format(const Variant& value);

}  // namespace akarix
