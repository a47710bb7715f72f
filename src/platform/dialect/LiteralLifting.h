#pragma once

#include <vector>

#include "platform/dialect/Token.h"

namespace akarix {

/// Takes the literals out of a statement that may differ from one text to the next without changing its plan,
/// and makes the key under which the plan is kept: the tokens, with the kind of a literal in its place.
/// What stays in: select lists (but for an INSERT of values), TOP, GROUP BY, ORDER BY.
struct LiftedStatement {
    QString key;  ///< empty: not to be kept (a definition, or more literals than the engine takes)
    std::vector<Literal> literals;
};

LiftedStatement LiftLiterals(std::vector<Token>& tokens);

}  // namespace akarix
