#pragma once

#include "platform/dialect/BoundExpression.h"

namespace akarix {

// Brings expressions to the form that an operator, a comparison or a column needs. What is a literal is told
// what to become; everything else gets a conversion around it.

/// For operands, which are numbers.
BoundPtr ToReal(const BoundPtr& expression);
/// For operands beside money and, exact whatever they have behind their fourth decimal, for comparisons.
BoundPtr ToScaled(const BoundPtr& expression);
/// A date or what a literal says as one; 3464 for anything else.
BoundPtr ToDate(const BoundPtr& expression);

/// The value of an expression as a column takes it. What cannot become the column's kind raises there.
BoundPtr ToColumn(const BoundPtr& expression, const ColumnDef& column);

/// Brings both to forms that the engine compares by value. Raises 3464 for a text beside a number or date.
void MakeComparable(BoundPtr& left, BoundPtr& right);

}  // namespace akarix
