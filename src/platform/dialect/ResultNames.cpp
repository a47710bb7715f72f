#include "platform/dialect/ResultNames.h"

#include <map>

#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

constexpr int kFirstExpression = 1000;

}  // namespace

void NameResults(std::vector<BoundItem>& items) {
    std::map<QString, int> uses;
    for (const BoundItem& item : items)
        if (!item.column.column.isEmpty() && item.column.name.isEmpty())
            ++uses[item.column.column.toCaseFolded()];
    int number = kFirstExpression;
    for (BoundItem& item : items) {
        if (!item.column.name.isEmpty()) continue;
        const auto* column = std::get_if<BoundColumn>(&item.expression->node);
        if (!column)
            item.column.name = u"Expr%1"_s.arg(number++);
        else if (uses[item.column.column.toCaseFolded()] > 1)
            item.column.name = column->table->definition->name + u'.' + item.column.column;
        else
            item.column.name = item.column.column;
    }
}

}  // namespace akarix
