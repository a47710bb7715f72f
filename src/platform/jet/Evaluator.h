#pragma once

#include "platform/jet/BoundExpression.h"

namespace akarix {

/// The value of an expression on a row whose columns are those of the only table it was bound to. Truth
/// values are -1 and 0.
StoreValue evaluate(const BoundExpression& expression, const std::vector<StoreValue>& row);

}  // namespace akarix
