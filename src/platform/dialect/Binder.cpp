#include "platform/dialect/Binder.h"

#include <algorithm>

#include "platform/dialect/DialectError.h"
#include "platform/dialect/ExpressionBinder.h"

namespace akarix {
namespace {

/// The places of the literals, in the order in which an engine is given their values.
class Places {
 public:
    explicit Places(std::vector<LiteralPlace>& places) : places_(places) {}

    void operator()(const BoundQuery& query) {
        for (const BoundPtr& item : query.items)
            add(item);
        add(query.rows);
        for (const BoundPtr& group : query.groups)
            add(group);
        for (const BoundOrder& term : query.order)
            add(term.expression);
    }
    void operator()(const BoundInsert& insert) {
        for (const BoundPtr& value : insert.values)
            add(value);
        if (insert.query) (*this)(*insert.query);
    }
    void operator()(const BoundUpdate& update) {
        for (const BoundAssignment& assignment : update.assignments)
            add(assignment.value);
        add(update.rows);
    }
    void operator()(const BoundDelete& deletion) { add(deletion.rows); }
    void operator()(const Definition&) {}

 private:
    void add(const BoundRows& rows) {
        for (const BoundJoin& join : rows.joins)
            add(join.on);
        add(rows.where);
    }
    void add(const BoundPtr& expression) {
        if (!expression) return;
        const auto* literal = expression->as<BoundLiteral>();
        if (literal && literal->place.number >= 0) places_.push_back(literal->place);
        for (const BoundPtr& operand : expression->operands)
            add(operand);
    }

    std::vector<LiteralPlace>& places_;
};

}  // namespace

BoundStatement Binder::bind(const ParsedStatement& parsed) const {
    BoundStatement statement;
    if (const auto* definition = std::get_if<Definition>(&parsed))
        statement.body = *definition;
    else if (const auto* query = std::get_if<ParsedQuery>(&parsed))
        statement.body = bound(*query);
    else if (const auto* insert = std::get_if<ParsedInsert>(&parsed))
        statement.body = bound(*insert);
    else if (const auto* update = std::get_if<ParsedUpdate>(&parsed))
        statement.body = bound(*update);
    else
        statement.body = bound(std::get<ParsedDelete>(parsed));
    std::visit(Places(statement.places), statement.body);
    return statement;
}

BoundRows Binder::bindRows(const ParsedSource& source, const ParsedExpression* where, Scope& scope) const {
    BoundRows rows;
    addTable(source.first, rows, scope);
    for (const ParsedJoin& join : source.joins) {
        addTable(join.table, rows, scope);
        rows.joins.push_back({join.outer, ExpressionBinder(scope).bind(*join.on)});
    }
    if (where) rows.where = ExpressionBinder(scope).bind(*where);
    return rows;
}

void Binder::addTable(const QString& name, BoundRows& rows, Scope& scope) const {
    auto table = std::make_unique<BoundTable>();
    table->id = static_cast<int>(rows.tables.size());
    table->definition = tableNamed(name);
    if (scope.table(table->definition->name)) throw TwiceInFrom(name);
    scope.add(table.get());
    rows.tables.push_back(std::move(table));
}

TablePtr Binder::tableNamed(const QString& name) const {
    TablePtr found = catalogue_.find(name);
    if (!found) throw UnknownTable(name);
    return found;
}

}  // namespace akarix
