#pragma once

#include <QString>

#include "platform/runtime/Variant.h"

namespace akarix {

/// A number as plain text with a leading blank where it is not negative; no zero before a bare point (" .5").
/// Raises 13 for text that is no number, 94 for Null.
QString Str(const Variant& value);
/// The same without the blank in the place of the sign.
QString StrUnpadded(const Variant& value);

}  // namespace akarix
