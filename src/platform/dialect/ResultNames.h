#pragma once

#include "platform/dialect/BoundQuery.h"

namespace akarix {

/// Names the results that have no alias: a stored column by itself, columns of one name with their tables in
/// front, expressions Expr1000, Expr1001 and so on.
void NameResults(std::vector<BoundItem>& items);

}  // namespace akarix
