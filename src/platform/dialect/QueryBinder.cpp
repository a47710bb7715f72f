#include "platform/dialect/QueryBinder.h"

#include <algorithm>

#include "platform/dialect/DialectError.h"
#include "platform/dialect/ExpressionBinder.h"
#include "platform/dialect/GroupCheck.h"
#include "platform/dialect/ResultNames.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

BoundItem ItemOf(BoundPtr expression) {
    BoundItem item;
    item.column.type = expression->type;
    item.column.size = expression->size;
    if (const auto* column = std::get_if<BoundColumn>(&expression->node)) {
        const TableDef& table = *column->table->definition;
        item.column.table = table.name;
        item.column.column = table.columns[static_cast<std::size_t>(column->column)].name;
    }
    item.expression = std::move(expression);
    return item;
}

bool AnyAggregate(const BoundQuery& query) {
    return std::any_of(
        query.items.begin(), query.items.end(),
        [](const BoundItem& item) { return HasAggregate(*item.expression); });
}

void AddStar(const ParsedItem& parsed, BoundQuery& query, const Scope& scope) {
    std::vector<const BoundTable*> tables = scope.tables();
    if (!parsed.starTable.isEmpty()) {
        const BoundTable* table = scope.table(parsed.starTable);
        if (!table) throw UnknownTable(parsed.starTable);
        tables = {table};
    }
    if (tables.empty()) throw DialectError(3067, u"クエリには少なくとも 1 つのテーブルが必要です。"_s);
    for (const BoundTable* table : tables)
        for (std::size_t i = 0; i < table->definition->columns.size(); ++i)
            query.items.push_back(ItemOf(MakeColumn(table, static_cast<int>(i))));
}

BoundPtr BoundAggregating(const ParsedExpression& parsed, const Scope& scope) {
    ExpressionBinder binder(scope);
    binder.allowAggregates();
    return binder.bind(parsed);
}

void BindItems(const ParsedQuery& parsed, BoundQuery& query, const Scope& scope) {
    for (const ParsedItem& item : parsed.items) {
        if (!item.expression) {
            AddStar(item, query, scope);
            continue;
        }
        BoundItem bound = ItemOf(BoundAggregating(*item.expression, scope));
        bound.column.name = item.alias;
        query.items.push_back(std::move(bound));
    }
    NameResults(query.items);
}

void BindOrder(const std::vector<ParsedOrder>& parsed, BoundQuery& query, const Scope& scope) {
    for (const ParsedOrder& term : parsed) {
        BoundPtr expression = BoundAggregating(*term.expression, scope);
        if (!query.grouped && HasAggregate(*expression)) throw OutsideAggregate(expression->text);
        query.order.push_back({std::move(expression), term.descending});
    }
}

}  // namespace

const TableDef* QueryBinder::tableNamed(const QString& name) const {
    const TableDef* found = catalogue_.find(name);
    if (!found) throw UnknownTable(name);
    return found;
}

BoundQuery QueryBinder::bind(const ParsedQuery& parsed) const {
    BoundQuery query;
    query.top = parsed.top;
    Scope scope;
    if (parsed.source) query.rows = bindRows(*parsed.source, parsed.where.get(), scope);
    BindItems(parsed, query, scope);
    for (const ParsedPtr& group : parsed.groups)
        query.groups.push_back(ExpressionBinder(scope).bind(*group));
    query.grouped = !query.groups.empty() || AnyAggregate(query);
    BindOrder(parsed.order, query, scope);
    CheckGroups(query);
    return query;
}

BoundRows QueryBinder::bindRows(const ParsedSource& source, const ParsedExpression* where,
                                Scope& scope) const {
    BoundRows rows;
    addTable(source.first, rows, scope);
    for (const ParsedJoin& join : source.joins) {
        addTable(join.table, rows, scope);
        rows.joins.push_back({join.outer, ExpressionBinder(scope).bind(*join.on)});
    }
    if (where) rows.where = ExpressionBinder(scope).bind(*where);
    return rows;
}

void QueryBinder::addTable(const QString& name, BoundRows& rows, Scope& scope) const {
    auto table = std::make_unique<BoundTable>();
    table->id = static_cast<int>(rows.tables.size());
    table->definition = tableNamed(name);
    if (scope.table(table->definition->name))
        throw DialectError(3012, u"'%1' は FROM 句に既にあります。"_s.arg(name));
    scope.add(table.get());
    rows.tables.push_back(std::move(table));
}

}  // namespace akarix
