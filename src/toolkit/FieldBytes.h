#pragma once

namespace akarix {

// What a box must hold, in bytes, so that no stored number loses a figure in it.

constexpr int kLongKeyBytes = 10;   ///< a code or number above 0, to 2147483647
constexpr int kLongBytes = 11;      ///< with its sign, from -2147483648
constexpr int kIntegerBytes = 6;    ///< from -32768
constexpr int kCurrencyBytes = 25;  ///< -922,337,203,685,477.5808
/// Width of a box for an amount; nobody's is so long that it must scroll there.
constexpr int kCurrencyShown = 12;

}  // namespace akarix
