#pragma once

#include <QString>

#include "platform/runtime/Variant.h"

namespace akarix {

/// The text of a value under a mask, by the classic rules: number masks with up to four sections, date masks
/// with eras. Works on decimal text and rounds half away from zero. Null and Empty give the fourth section of
/// a numeric mask, else an empty text.
/// Text that is no number, or no date, comes back as it stands under such a mask; a number
/// beyond the dates raises 6 under a date mask.
QString Format(const Variant& value, const QString& mask);
/// Without a mask: the general text, without the leading blank of Str.
QString Format(const Variant& value);

}  // namespace akarix
