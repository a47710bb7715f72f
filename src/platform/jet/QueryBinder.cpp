#include "platform/jet/QueryBinder.h"

#include <algorithm>

#include "platform/jet/Coercion.h"
#include "platform/jet/DialectError.h"
#include "platform/jet/GroupCheck.h"
#include "platform/jet/ResultNames.h"

namespace akarix {
namespace {

BoundItem itemOf(BoundPtr expression) {
    BoundItem item;
    item.column.type = expression->type;
    item.column.size = expression->size;
    if (const auto* column = std::get_if<BoundColumn>(&expression->node)) {
        const TableDef& table = *column->table->definition;
        item.column.table = column->table->derived ? QString() : table.name;
        item.column.column = table.columns[static_cast<std::size_t>(column->column)].name;
    }
    item.expression = std::move(expression);
    return item;
}

/// The number of a column in "ORDER BY 2", counted from 0; nothing for any other expression.
std::optional<std::size_t> ordinalOf(const ParsedExpression& parsed, std::size_t columns) {
    const auto* literal = std::get_if<ParsedLiteral>(&parsed.node);
    if (!literal || literal->literal.kind != Literal::Kind::Integer) return std::nullopt;
    const std::int64_t number = std::get<std::int64_t>(literal->literal.value);
    if (literal->negated || number < 1 || number > static_cast<std::int64_t>(columns)) {
        throw unknownName(parsed.text.toString(), parsed.position);
    }
    return static_cast<std::size_t>(number - 1);
}

const QString* loneName(const ParsedExpression& parsed) {
    const auto* name = std::get_if<ParsedName>(&parsed.node);
    return name && name->table.isEmpty() ? &name->column : nullptr;
}

bool anyAggregate(const BoundSelect& select) {
    const auto inItem = [](const BoundItem& item) { return hasAggregate(*item.expression); };
    return std::any_of(select.items.begin(), select.items.end(), inItem);
}

/// What a query delivers, as a table for the query around it.
std::shared_ptr<const TableDef> definitionOf(const BoundQuery& query, const QString& name) {
    auto made = std::make_shared<TableDef>();
    made->name = name;
    for (const BoundItem& item : query.members.front().items) {
        made->columns.push_back({item.column.name, item.column.type, item.column.size});
    }
    return made;
}

}  // namespace

ExpressionBinder QueryBinder::expressions(const Scope& scope) {
    return ExpressionBinder(
        scope, [this](const ParsedQuery& parsed, const Scope& outer) { return bind(parsed, &outer); });
}

const TableDef* QueryBinder::tableNamed(const QString& name) const {
    const TableDef* found = catalogue_.find(name);
    if (!found) throw unknownTable(name);
    return found;
}

std::shared_ptr<BoundQuery> QueryBinder::bind(const ParsedQuery& parsed, const Scope* outer) {
    auto query = std::make_shared<BoundQuery>();
    query->all = parsed.all;
    const bool single = parsed.members.size() == 1;
    const std::vector<ParsedOrder> unordered;
    for (const ParsedSelect& member : parsed.members) {
        query->members.push_back(bindSelect(member, single ? parsed.order : unordered, outer));
    }
    if (single) return query;
    std::vector<BoundItem>& first = query->members.front().items;
    for (std::size_t i = 0; i < first.size(); ++i) {
        Kind kind = Kind::Null;
        for (const BoundSelect& member : query->members) {
            if (member.items.size() != first.size()) {
                throw dialectError(3307,
                                   QStringLiteral("ユニオン クエリの各クエリの列数が一致していません。"));
            }
            kind = commonKind(kind, member.items[i].expression->kind);
        }
        if (kindOf(first[i].column.type) != kind) first[i].column.type = typeOf(kind);
        for (BoundSelect& member : query->members) {
            member.items[i].expression = toKind(member.items[i].expression, kind);
        }
    }
    bindUnionOrder(parsed.order, *query);
    return query;
}

void QueryBinder::bindUnionOrder(const std::vector<ParsedOrder>& parsed, BoundQuery& query) {
    const std::vector<BoundItem>& items = query.members.front().items;
    for (const ParsedOrder& term : parsed) {
        std::optional<std::size_t> place = ordinalOf(*term.expression, items.size());
        if (const QString* name = loneName(*term.expression)) {
            const auto found = std::find_if(items.begin(), items.end(), [&](const BoundItem& item) {
                return item.column.name.compare(*name, Qt::CaseInsensitive) == 0;
            });
            if (found != items.end()) place = static_cast<std::size_t>(found - items.begin());
        }
        if (!place) throw unknownName(term.expression->text.toString(), term.expression->position);
        query.order.push_back({*place, term.descending});
    }
}

BoundSelect QueryBinder::bindSelect(const ParsedSelect& parsed, const std::vector<ParsedOrder>& order,
                                    const Scope* outer) {
    BoundSelect select;
    select.distinct = parsed.distinct;
    select.distinctRow = parsed.distinctRow;
    select.top = parsed.top;
    Scope scope(outer);
    select.rows = bindRows(parsed.sources, parsed.where.get(), scope);
    bindItems(parsed, select, scope);
    ExpressionBinder plain = expressions(scope);
    for (const ParsedPtr& group : parsed.groups)
        select.groups.push_back(plain.bind(*group));
    if (parsed.having) {
        ExpressionBinder aggregating = expressions(scope);
        aggregating.allowAggregates();
        select.having = aggregating.bind(*parsed.having);
    }
    select.grouped = !select.groups.empty() || select.having || anyAggregate(select);
    bindOrder(order, select, scope);
    checkGroups(select);
    return select;
}

BoundRows QueryBinder::bindRows(const std::vector<ParsedSource>& sources, const ParsedExpression* where,
                                Scope& scope) {
    BoundRows rows;
    for (const ParsedSource& source : sources)
        rows.sources.push_back(bindSource(source, rows, scope, false));
    if (where) rows.where = expressions(scope).bind(*where);
    return rows;
}

BoundSource QueryBinder::bindSource(const ParsedSource& parsed, BoundRows& rows, Scope& scope,
                                    bool enclosed) {
    if (const auto* join = std::get_if<ParsedJoin>(&parsed.node))
        return bindJoin(*join, rows, scope, enclosed);
    auto table = std::make_unique<BoundTable>();
    if (const auto* derived = std::get_if<ParsedDerived>(&parsed.node)) {
        table->alias = derived->alias;
        table->derived = bind(*derived->query);
        table->derivedDefinition = definitionOf(*table->derived, derived->alias);
        table->definition = table->derivedDefinition.get();
    } else {
        const auto& named = std::get<ParsedTable>(parsed.node);
        table->definition = tableNamed(named.name);
        table->alias = named.alias.isEmpty() ? table->definition->name : named.alias;
    }
    return addTable(std::move(table), rows, scope, enclosed);
}

BoundSource QueryBinder::addTable(std::unique_ptr<BoundTable> table, BoundRows& rows, Scope& scope,
                                  bool enclosed) {
    const BoundTable* twin = scope.table(table->alias);
    if (twin) {
        throw dialectError(3012, QStringLiteral("'%1' は FROM 句に既にあります。").arg(table->alias));
    }
    table->id = tables_++;
    table->rowNumberReachable = !enclosed && !table->derived;
    scope.add(table.get());
    rows.tables.push_back(std::move(table));
    return BoundSource{rows.tables.back().get()};
}

BoundSource QueryBinder::bindJoin(const ParsedJoin& parsed, BoundRows& rows, Scope& scope, bool enclosed) {
    // A condition sees the tables of its own join alone, hence the scope between.
    Scope own;
    const std::size_t first = rows.tables.size();
    const bool right = parsed.op == JoinOp::Right;
    const bool leftIsJoin = std::holds_alternative<ParsedJoin>(parsed.left->node);
    const bool rightIsJoin = std::holds_alternative<ParsedJoin>(parsed.right->node);
    auto leftSide = std::make_unique<BoundSource>(
        bindSource(*parsed.left, rows, scope, enclosed || (right && leftIsJoin)));
    auto rightSide = std::make_unique<BoundSource>(
        bindSource(*parsed.right, rows, scope, enclosed || (!right && rightIsJoin)));
    for (std::size_t i = first; i < rows.tables.size(); ++i)
        own.add(rows.tables[i].get());
    BoundJoin join{parsed.op != JoinOp::Inner, std::move(leftSide), std::move(rightSide), nullptr};
    join.on = expressions(own).bind(*parsed.on);
    if (right) std::swap(join.left, join.right);
    return BoundSource{std::move(join)};
}

void QueryBinder::bindItems(const ParsedSelect& parsed, BoundSelect& select, Scope& scope) {
    for (const ParsedItem& item : parsed.items) {
        if (!item.expression) {
            addStar(item, select, scope);
            continue;
        }
        ExpressionBinder binder = expressions(scope);
        binder.allowAggregates();
        binder.allowResults();
        BoundItem bound = itemOf(binder.bind(*item.expression));
        bound.column.name = item.alias;
        if (!item.alias.isEmpty()) scope.nameResult(item.alias, bound.expression);
        select.items.push_back(std::move(bound));
    }
    nameResults(select.items);
}

void QueryBinder::addStar(const ParsedItem& parsed, BoundSelect& select, const Scope& scope) {
    std::vector<const BoundTable*> tables = scope.tables();
    if (!parsed.starTable.isEmpty()) {
        const BoundTable* table = scope.table(parsed.starTable);
        if (!table) throw unknownTable(parsed.starTable);
        tables = {table};
    }
    if (tables.empty())
        throw dialectError(3067, QStringLiteral("クエリには少なくとも 1 つのテーブルが必要です。"));
    for (const BoundTable* table : tables) {
        for (std::size_t i = 0; i < table->definition->columns.size(); ++i) {
            select.items.push_back(itemOf(boundColumn(table, static_cast<int>(i))));
        }
    }
}

void QueryBinder::bindOrder(const std::vector<ParsedOrder>& parsed, BoundSelect& select, const Scope& scope) {
    for (const ParsedOrder& term : parsed) {
        BoundOrder bound;
        bound.descending = term.descending;
        if (const auto place = ordinalOf(*term.expression, select.items.size())) {
            bound.expression = select.items[*place].expression;
        } else if (const QString* name = loneName(*term.expression)) {
            bound.expression = scope.result(*name);  // an alias goes before a column of the same name
        }
        if (!bound.expression) {
            ExpressionBinder binder = expressions(scope);
            binder.allowAggregates();
            binder.allowResults();
            bound.expression = binder.bind(*term.expression);
        }
        if (!select.grouped && hasAggregate(*bound.expression))
            throw outsideAggregate(bound.expression->text);
        const auto isSame = [&](const BoundItem& item) {
            return sameExpression(*item.expression, *bound.expression);
        };
        if (select.distinct && std::none_of(select.items.begin(), select.items.end(), isSame)) {
            throw dialectError(
                3093,
                QStringLiteral("ORDER BY 句 (%1) は DISTINCT と矛盾しています。").arg(term.expression->text));
        }
        select.order.push_back(std::move(bound));
    }
}

}  // namespace akarix
