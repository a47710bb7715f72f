#pragma once

#include <vector>

#include "platform/dialect/Token.h"

namespace akarix {

/// Numbers the literals of a statement that may differ from one text to the next without changing its plan,
/// by their place among all literals. The others are part of it: those of select lists (but for an INSERT of
/// values), TOP, GROUP BY, ORDER BY and definitions.
void LiftLiterals(std::vector<Token>& tokens);

}  // namespace akarix
