#include "platform/jet/GroupCheck.h"

#include <algorithm>

#include "platform/jet/DialectError.h"

namespace akarix {
namespace {

void check(const BoundExpression& expression, const BoundQuery& query) {
    const bool isGroup = std::any_of(query.groups.begin(), query.groups.end(), [&](const BoundPtr& group) {
        return sameExpression(*group, expression);
    });
    if (isGroup || std::holds_alternative<BoundAggregate>(expression.node)) return;
    if (std::holds_alternative<BoundColumn>(expression.node)) throw outsideAggregate(expression.text);
    for (const BoundPtr& operand : operandsOf(expression))
        check(*operand, query);
}

}  // namespace

void checkGroups(const BoundQuery& query) {
    if (!query.grouped) return;
    for (const BoundItem& item : query.items)
        check(*item.expression, query);
    for (const BoundOrder& term : query.order)
        check(*term.expression, query);
}

}  // namespace akarix
