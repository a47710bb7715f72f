#include "platform/jet/GroupCheck.h"

#include <algorithm>

#include "platform/jet/DialectError.h"

namespace akarix {
namespace {

bool belongsTo(const BoundTable* table, const BoundRows& rows) {
    return std::any_of(rows.tables.begin(), rows.tables.end(),
                       [&](const auto& own) { return own.get() == table; });
}

void check(const BoundExpression& expression, const BoundSelect& select) {
    const bool isGroup = std::any_of(select.groups.begin(), select.groups.end(), [&](const BoundPtr& group) {
        return sameExpression(*group, expression);
    });
    if (isGroup || std::holds_alternative<BoundAggregate>(expression.node)) return;
    if (const auto* column = std::get_if<BoundColumn>(&expression.node)) {
        if (belongsTo(column->table, select.rows)) throw outsideAggregate(expression.text);
        return;
    }
    for (const BoundPtr& operand : operandsOf(expression))
        check(*operand, select);
}

}  // namespace

void checkGroups(const BoundSelect& select) {
    if (!select.grouped) return;
    for (const BoundItem& item : select.items)
        check(*item.expression, select);
    if (select.having) check(*select.having, select);
    for (const BoundOrder& term : select.order)
        check(*term.expression, select);
}

}  // namespace akarix
