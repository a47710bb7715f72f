#pragma once

#include <QString>
#include <functional>

#include "platform/runtime/Variant.h"

namespace akarix {

/// The text of a stored value on the screen.
using DisplayRule = std::function<QString(const Variant& value)>;
/// Shows a value through a mask; "##" thus leaves a field of value 0 empty.
DisplayRule Masked(const QString& mask);
/// Shows 0 as nothing, any other value through the mask.
DisplayRule MaskedUnlessZero(const QString& mask);
/// Shows an amount or a reading through a mask, none as 0. A list is full of equal figures, so the last text
/// is kept.
DisplayRule Figure(const QString& mask);
/// A plain number, none as 0.
QString Number(const Variant& value);

}  // namespace akarix
