#include "platform/dialect/ChangeBinder.h"

#include <algorithm>

#include "platform/dialect/Coercion.h"
#include "platform/dialect/DialectError.h"
#include "platform/dialect/ExpressionBinder.h"
#include "platform/dialect/StoreError.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

RuntimeError CountsDiffer() {
    return DialectError(3346, u"クエリの値の数とフィールドの数が一致していません。"_s);
}

/// The columns an INSERT names, all of the table when it names none.
std::vector<int> ColumnsOf(const ParsedInsert& parsed, const TableDef& table) {
    std::vector<int> columns;
    if (parsed.columns.empty()) {
        for (std::size_t i = 0; i < table.columns.size(); ++i)
            columns.push_back(static_cast<int>(i));
        return columns;
    }
    for (const ParsedName& name : parsed.columns) {
        const int column = table.indexOf(name.column);
        if (column < 0) {
            throw DialectError(
                3127, u"INSERT INTO ステートメントに不明なフィールド名 '%1' があります。"_s.arg(name.column));
        }
        if (std::find(columns.begin(), columns.end(), column) != columns.end())
            throw DialectError(3063, u"出力先 '%1' が重複しています。"_s.arg(name.column));
        columns.push_back(column);
    }
    return columns;
}

const ColumnDef& ColumnAt(const TableDef& table, int index) {
    return table.columns[static_cast<std::size_t>(index)];
}

RuntimeError NotUpdatable() {
    return DialectError(3073, u"更新可能なクエリであることが必要です。"_s);
}

/// What a new row must have and is not given.
void CheckRequired(const BoundInsert& bound) {
    for (std::size_t i = 0; i < bound.table->columns.size(); ++i) {
        const ColumnDef& column = bound.table->columns[i];
        if (!column.required || column.zeroDefault) continue;
        if (std::find(bound.columns.begin(), bound.columns.end(), static_cast<int>(i)) == bound.columns.end())
            throw StoreError(3314, column.name);
    }
}

}  // namespace

BoundInsert ChangeBinder::bind(const ParsedInsert& parsed) {
    BoundInsert bound;
    bound.table = queries_.tableNamed(parsed.table);
    bound.columns = ColumnsOf(parsed, *bound.table);
    if (!parsed.query) {
        CheckRequired(bound);
        if (parsed.values.size() != bound.columns.size()) throw CountsDiffer();
        const Scope nothing;
        ExpressionBinder binder(nothing);
        for (std::size_t i = 0; i < parsed.values.size(); ++i) {
            bound.values.push_back(
                ToColumn(binder.bind(*parsed.values[i]), ColumnAt(*bound.table, bound.columns[i])));
        }
        return bound;
    }
    BoundQuery query = queries_.bind(*parsed.query);
    if (parsed.columns.empty()) {
        // Without a column list the names of the results say where they go.
        bound.columns.clear();
        for (const BoundItem& item : query.items) {
            const int column = bound.table->indexOf(item.column.name);
            if (column < 0) {
                throw DialectError(3127,
                                   u"INSERT INTO ステートメントに不明なフィールド名 '%1' があります。"_s.arg(
                                       item.column.name));
            }
            bound.columns.push_back(column);
        }
    }
    CheckRequired(bound);
    if (query.items.size() != bound.columns.size()) throw CountsDiffer();
    for (std::size_t i = 0; i < query.items.size(); ++i) {
        BoundPtr& value = query.items[i].expression;
        value = ToColumn(value, ColumnAt(*bound.table, bound.columns[i]));
    }
    bound.query = std::move(query);
    return bound;
}

BoundUpdate ChangeBinder::bind(const ParsedUpdate& parsed) {
    BoundUpdate bound;
    bound.target = nullptr;
    Scope scope;
    bound.rows = queries_.bindRows(parsed.source, parsed.where.get(), scope);
    for (const ParsedAssignment& assignment : parsed.assignments) {
        const BoundPtr place = scope.column(assignment.column, assignment.position);
        if (!place) throw UnknownName(assignment.column.column, assignment.position);
        const auto& column = std::get<BoundColumn>(place->node);
        if (bound.target && bound.target != column.table) throw NotUpdatable();
        bound.target = column.table;
        const BoundPtr value = ExpressionBinder(scope).bind(*assignment.value);
        bound.assignments.push_back(
            {column.column, ToColumn(value, ColumnAt(*column.table->definition, column.column))});
    }
    return bound;
}

BoundDelete ChangeBinder::bind(const ParsedDelete& parsed) {
    BoundDelete bound;
    Scope scope;
    bound.rows = queries_.bindRows({parsed.table, {}}, parsed.where.get(), scope);
    return bound;
}

}  // namespace akarix
