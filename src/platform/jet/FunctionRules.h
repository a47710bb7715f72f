#pragma once

#include <optional>

#include "platform/jet/BoundExpression.h"

namespace akarix {

/// Binds a call of one of the dialect's functions on a row. Raises 3085 for a name it does not know and 3075
/// (as "wrong number of arguments") when the count does not fit.
BoundPtr bindFunction(const QString& name, std::vector<BoundPtr> arguments, qsizetype position);

std::optional<AggregateOp> aggregateNamed(const QString& name);

}  // namespace akarix
