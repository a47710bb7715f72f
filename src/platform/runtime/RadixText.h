#pragma once

#include <QString>
#include <cstdint>
#include <optional>

namespace akarix {

struct RadixText {
    std::uint64_t bits;
    bool closed;       ///< a "&" stood behind the digits: at least 32 bits wide
    qsizetype length;  ///< characters read
};

/// Reads "&H1F" or "&O17" at the front of a text; more than 64 bits raise 6.
std::optional<RadixText> readRadixText(QStringView text);

}  // namespace akarix
