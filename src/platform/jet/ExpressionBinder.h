#pragma once

#include <functional>

#include "platform/jet/BoundQuery.h"
#include "platform/jet/Scope.h"

namespace akarix {

/// Binds the expressions of one clause.
class ExpressionBinder {
 public:
    using BindQuery = std::function<std::shared_ptr<BoundQuery>(const ParsedQuery&, const Scope&)>;

    /// \param bindQuery binds a subquery; none where subqueries have no place.
    ExpressionBinder(const Scope& scope, BindQuery bindQuery)
        : scope_(scope), bindQuery_(std::move(bindQuery)) {}

    /// Aggregates have a place here.
    void allowAggregates() { aggregates_ = true; }
    /// Aliases of the select list count where no column has the name.
    void allowResults() { results_ = true; }

    BoundPtr bind(const ParsedExpression& parsed);

 private:
    BoundPtr bindNode(const ParsedExpression& parsed);
    BoundPtr name(const ParsedExpression& parsed, const ParsedName& node);
    BoundPtr literal(const ParsedLiteral& node);
    BoundPtr negation(const ParsedNegation& node);
    BoundPtr arithmetic(const ParsedArithmetic& node);
    BoundPtr comparison(const ParsedComparison& node);
    BoundPtr like(const ParsedLike& node);
    BoundPtr between(const ParsedBetween& node);
    BoundPtr inList(const ParsedInList& node);
    BoundPtr inQuery(const ParsedInQuery& node);
    BoundPtr call(const ParsedExpression& parsed, const ParsedCall& node);
    BoundPtr aggregate(const ParsedExpression& parsed, const ParsedCall& node, AggregateOp op);
    std::shared_ptr<BoundQuery> query(const ParsedQuery& parsed);

    const Scope& scope_;
    BindQuery bindQuery_;
    bool aggregates_ = false;
    bool results_ = false;
};

bool hasAggregate(const BoundExpression& expression);

}  // namespace akarix
