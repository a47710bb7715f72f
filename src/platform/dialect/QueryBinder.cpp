#include <algorithm>
#include <map>

#include "platform/dialect/Binder.h"
#include "platform/dialect/DialectError.h"
#include "platform/dialect/ExpressionBinder.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

void AddItem(BoundPtr expression, const QString& alias, BoundQuery& query) {
    ResultColumn column{alias, expression->type, expression->size};
    if (const auto* stored = expression->as<BoundColumn>()) column.column = stored->definition().name;
    query.columns.push_back(std::move(column));
    query.items.push_back(std::move(expression));
}

void AddStar(const ParsedItem& parsed, BoundQuery& query, const Scope& scope) {
    std::vector<const BoundTable*> tables = scope.tables();
    if (!parsed.starTable.isEmpty()) {
        const BoundTable* table = scope.table(parsed.starTable);
        if (!table) throw UnknownTable(parsed.starTable);
        tables = {table};
    }
    if (tables.empty()) throw RuntimeError(3067, u"クエリには少なくとも 1 つのテーブルが必要です。"_s);
    for (const BoundTable* table : tables)
        for (std::size_t i = 0; i < table->definition->columns.size(); ++i)
            AddItem(MakeColumn(table, static_cast<int>(i)), QString(), query);
}

/// Names the results that have no alias: a stored column by itself, columns of one name with their tables in
/// front, expressions Expr1000, Expr1001 and so on.
void NameResults(BoundQuery& query) {
    std::map<QString, int> uses;
    for (const ResultColumn& column : query.columns)
        if (column.name.isEmpty()) ++uses[column.column.toCaseFolded()];
    int number = 1000;
    for (std::size_t i = 0; i < query.items.size(); ++i) {
        ResultColumn& result = query.columns[i];
        if (!result.name.isEmpty()) continue;
        const auto* column = query.items[i]->as<BoundColumn>();
        if (!column)
            result.name = u"Expr%1"_s.arg(number++);
        else if (uses[result.column.toCaseFolded()] > 1)
            result.name = column->table->definition->name + u'.' + result.column;
        else
            result.name = result.column;
    }
}

/// Columns of a grouped query stand in its groups or in aggregates.
void CheckGrouped(const BoundExpression& expression, const BoundQuery& query) {
    const bool isGroup = std::any_of(query.groups.begin(), query.groups.end(), [&](const BoundPtr& group) {
        return SameExpression(*group, expression);
    });
    if (isGroup || expression.as<Aggregate>()) return;
    if (expression.as<BoundColumn>()) throw OutsideAggregate(expression.text);
    for (const BoundPtr& operand : expression.operands)
        CheckGrouped(*operand, query);
}

}  // namespace

BoundQuery Binder::bound(const ParsedQuery& parsed) const {
    BoundQuery query;
    query.top = parsed.top;
    Scope scope;
    if (parsed.source) query.rows = bindRows(*parsed.source, parsed.where.get(), scope);
    ExpressionBinder aggregating(scope);
    aggregating.allowAggregates();
    for (const ParsedItem& item : parsed.items)
        if (item.expression)
            AddItem(aggregating.bind(*item.expression), item.alias, query);
        else
            AddStar(item, query, scope);
    NameResults(query);
    for (const ParsedPtr& group : parsed.groups)
        query.groups.push_back(ExpressionBinder(scope).bind(*group));
    query.grouped =
        !query.groups.empty() || std::any_of(query.items.begin(), query.items.end(),
                                             [](const BoundPtr& item) { return HasAggregate(*item); });
    for (const ParsedOrder& term : parsed.order) {
        BoundPtr expression = aggregating.bind(*term.expression);
        if (!query.grouped && HasAggregate(*expression)) throw OutsideAggregate(expression->text);
        query.order.push_back({std::move(expression), term.descending});
    }
    if (query.grouped) {
        for (const BoundPtr& item : query.items)
            CheckGrouped(*item, query);
        for (const BoundOrder& term : query.order)
            CheckGrouped(*term.expression, query);
    }
    return query;
}

}  // namespace akarix
