#include "platform/runtime/CLng.h"

#include <limits>

#include "platform/runtime/NumberOf.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

std::int32_t CLng(const Variant& value) {
    const std::int64_t whole = NumberOf(value).scaled(0);
    using Limits = std::numeric_limits<std::int32_t>;
    if (whole < Limits::min() || whole > Limits::max()) throw RuntimeError(6);
    return static_cast<std::int32_t>(whole);
}

}  // namespace akarix
