#pragma once

#include <functional>

namespace akarix {

/// Runs what a debit button does with its disk. An error ends it and is told: a full disk and an empty drive
/// in words, any other by its number and text. Nothing is closed: a file left half written or half read keeps
/// its number, and the next try is refused with 55 until the program has been started anew.
void TrapDebit(const std::function<void()>& action);

}  // namespace akarix
