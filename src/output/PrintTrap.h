#pragma once

#include <functional>

namespace akarix {

/// Runs what a print button does. A cancelled printer dialog and a run that was stopped end it in silence;
/// any other error is told as its number directly followed by its description, and the click ends.
void TrapPrinting(const std::function<void()>& print);

}  // namespace akarix
