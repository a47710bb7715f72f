#include "platform/dialect/GroupCheck.h"

#include <algorithm>

#include "platform/dialect/DialectError.h"

namespace akarix {
namespace {

void Check(const BoundExpression& expression, const BoundQuery& query) {
    const bool isGroup = std::any_of(query.groups.begin(), query.groups.end(), [&](const BoundPtr& group) {
        return SameExpression(*group, expression);
    });
    if (isGroup || std::holds_alternative<BoundAggregate>(expression.node)) return;
    if (std::holds_alternative<BoundColumn>(expression.node)) throw OutsideAggregate(expression.text);
    for (const BoundPtr& operand : OperandsOf(expression))
        Check(*operand, query);
}

}  // namespace

void CheckGroups(const BoundQuery& query) {
    if (!query.grouped) return;
    for (const BoundItem& item : query.items)
        Check(*item.expression, query);
    for (const BoundOrder& term : query.order)
        Check(*term.expression, query);
}

}  // namespace akarix
