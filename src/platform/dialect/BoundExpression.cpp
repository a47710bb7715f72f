#include "platform/dialect/BoundExpression.h"

#include <algorithm>

namespace akarix {

BoundPtr MakeBound(decltype(BoundExpression::node) node, Kind kind, std::vector<BoundPtr> operands) {
    auto made = std::make_shared<BoundExpression>();
    made->node = std::move(node);
    made->kind = kind;
    made->type = TypeOf(kind);
    if (!operands.empty()) {
        made->text = operands.front()->text;
        made->position = operands.front()->position;
    }
    made->operands = std::move(operands);
    return made;
}

BoundPtr MakeColumn(const BoundTable* table, int column) {
    const ColumnDef& definition = table->definition->at(column);
    auto made = std::make_shared<BoundExpression>();
    made->node = BoundColumn{table, column};
    made->kind = KindOf(definition.type);
    made->type = definition.type;
    made->size = definition.size;
    made->text = definition.name;
    return made;
}

bool SameExpression(const BoundExpression& a, const BoundExpression& b) {
    return a.node == b.node &&
           std::equal(a.operands.begin(), a.operands.end(), b.operands.begin(), b.operands.end(),
                      [](const BoundPtr& x, const BoundPtr& y) { return SameExpression(*x, *y); });
}

bool HasAggregate(const BoundExpression& expression) {
    return expression.as<Aggregate>() ||
           std::any_of(expression.operands.begin(), expression.operands.end(),
                       [](const BoundPtr& operand) { return HasAggregate(*operand); });
}

}  // namespace akarix
