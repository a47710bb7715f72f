#pragma once

#include "platform/dialect/BoundQuery.h"
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
    BoundPtr bindNode(const ParsedExpression& parsed);
    BoundPtr name(const ParsedExpression& parsed, const ParsedName& node);
    BoundPtr literal(const ParsedLiteral& node);
    BoundPtr negation(const ParsedNegation& node);
    BoundPtr arithmetic(const ParsedArithmetic& node);
    BoundPtr comparison(const ParsedComparison& node);
    BoundPtr like(const ParsedLike& node);
    BoundPtr call(const ParsedExpression& parsed, const ParsedCall& node);
    BoundPtr aggregate(const ParsedExpression& argument, AggregateOp op);

    const Scope& scope_;
    bool aggregates_ = false;
};

bool HasAggregate(const BoundExpression& expression);

}  // namespace akarix
