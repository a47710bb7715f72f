#include "platform/runtime/CInt.h"

#include <limits>

#include "platform/runtime/NumberOf.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

std::int16_t CInt(const Variant& value) {
    std::int64_t whole = NumberOf(value).scaled(0);
    const QString* text = value.If<QString>();
    const bool pattern = text && text->contains(u'&') && whole >= 0 && whole <= 0xFFFF;
    if (pattern) whole = static_cast<std::int16_t>(whole);  // "&HFFFF" is a pattern of 16 bits here
    using Limits = std::numeric_limits<std::int16_t>;
    if (whole < Limits::min() || whole > Limits::max()) throw RuntimeError(6);
    return static_cast<std::int16_t>(whole);
}

}  // namespace akarix
