#pragma once

#include "platform/dialect/BoundExpression.h"
#include "platform/dialect/Parsed.h"
#include "platform/dialect/Scope.h"

namespace akarix {

/// Binds the expressions of one clause.
class ExpressionBinder {
 public:
    explicit ExpressionBinder(const Scope& scope) : scope_(scope) {}

    /// Aggregates have a place here.
    void allowAggregates() { aggregates_ = true; }

    BoundPtr bind(const ParsedExpression& parsed);

 private:
    BoundPtr bound(const ParsedExpression& parsed);
    BoundPtr operation(Operator op, const ParsedExpression& parsed);
    BoundPtr call(const ParsedExpression& parsed, const ParsedCall& node);
    BoundPtr aggregate(const ParsedExpression& argument, Aggregate which);

    const Scope& scope_;
    bool aggregates_ = false;
};

}  // namespace akarix
