#pragma once

#include <QString>
#include <cstdint>
#include <variant>
#include <vector>

namespace akarix {

/// A value as an engine stores it: Currency is its scaled integer, a date its serial number as a double,
/// Boolean -1 or 0, text UTF-16 in QString.
using StoreValue = std::variant<std::monostate, std::int64_t, double, QString>;

using StoreRow = std::vector<StoreValue>;

}  // namespace akarix
