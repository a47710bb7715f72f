#include <algorithm>

#include "platform/dialect/Binder.h"
#include "platform/dialect/Coercion.h"
#include "platform/dialect/DialectError.h"
#include "platform/dialect/ExpressionBinder.h"
#include "platform/dialect/StoreError.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

/// The columns an INSERT names: in its list or, without one, by the names of its query's results; all of the
/// table when it has neither.
std::vector<int> ColumnsOf(const ParsedInsert& parsed, const BoundInsert& bound) {
    QStringList names = parsed.columns;
    if (names.empty() && bound.query)
        for (const ResultColumn& result : bound.query->columns)
            names.push_back(result.name);
    if (names.empty())
        for (const ColumnDef& column : bound.table->columns)
            names.push_back(column.name);
    std::vector<int> columns;
    for (const QString& name : names) {
        const int column = bound.table->indexOf(name);
        if (column < 0) {
            throw RuntimeError(
                3127, u"INSERT INTO ステートメントに不明なフィールド名 '%1' があります。"_s.arg(name));
        }
        if (std::find(columns.begin(), columns.end(), column) != columns.end())
            throw RuntimeError(3063, u"出力先 '%1' が重複しています。"_s.arg(name));
        columns.push_back(column);
    }
    return columns;
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

BoundInsert Binder::bound(const ParsedInsert& parsed) const {
    BoundInsert bound;
    bound.table = tableNamed(parsed.table);
    if (parsed.query) bound.query = this->bound(*parsed.query);
    bound.columns = ColumnsOf(parsed, bound);
    CheckRequired(bound);
    const Scope nothing;
    for (const ParsedPtr& value : parsed.values)
        bound.values.push_back(ExpressionBinder(nothing).bind(*value));
    std::vector<BoundPtr>& values = bound.query ? bound.query->items : bound.values;
    if (values.size() != bound.columns.size())
        throw RuntimeError(3346, u"クエリの値の数とフィールドの数が一致していません。"_s);
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = ToColumn(values[i], bound.table->at(bound.columns[i]));
    return bound;
}

BoundUpdate Binder::bound(const ParsedUpdate& parsed) const {
    BoundUpdate bound;
    Scope scope;
    bound.rows = bindRows(parsed.source, parsed.where.get(), scope);
    for (const ParsedAssignment& assignment : parsed.assignments) {
        const BoundPtr place = scope.column(assignment.column, assignment.position);
        if (!place) throw UnknownName(assignment.column.column, assignment.position);
        const auto& column = *place->as<BoundColumn>();
        if (bound.target && bound.target != column.table)
            throw RuntimeError(3073, u"更新可能なクエリであることが必要です。"_s);
        bound.target = column.table;
        bound.assignments.push_back(
            {column.column, ToColumn(ExpressionBinder(scope).bind(*assignment.value), column.definition())});
    }
    return bound;
}

BoundDelete Binder::bound(const ParsedDelete& parsed) const {
    BoundDelete bound;
    Scope scope;
    bound.rows = bindRows({parsed.table, {}}, parsed.where.get(), scope);
    return bound;
}

}  // namespace akarix
