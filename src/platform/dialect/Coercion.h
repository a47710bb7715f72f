#pragma once

#include "platform/dialect/BoundExpression.h"

namespace akarix {

// Brings expressions to the kind that an operator, a comparison or a column needs. What is a literal is told
// what to become; everything else gets a conversion around it.

/// For results and operands. Text that is no number raises 13 when the statement runs.
BoundPtr ToReal(const BoundPtr& expression);
BoundPtr ToCurrency(const BoundPtr& expression);
BoundPtr ToDate(const BoundPtr& expression);
BoundPtr ToText(const BoundPtr& expression);

/// The value of an expression as a column takes it. What cannot become the column's kind stays as it is and
/// raises there.
BoundPtr ToColumn(const BoundPtr& expression, const ColumnDef& column);

/// Brings all to forms that the engine compares by value. Raises 3464 for texts among numbers or dates.
void MakeComparable(const std::vector<BoundPtr*>& expressions);

}  // namespace akarix
