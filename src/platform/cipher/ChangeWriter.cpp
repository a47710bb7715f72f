#include <algorithm>

#include "platform/cipher/Sqlite.h"
#include "platform/cipher/Writer.h"

namespace akarix {
namespace {

/// Whether a value can be written without the other tables of a joined update.
bool NeedsOnly(const BoundTable* table, const BoundExpression& expression) {
    if (const auto* column = expression.as<BoundColumn>()) return column->table == table;
    return std::all_of(expression.operands.begin(), expression.operands.end(),
                       [&](const BoundPtr& operand) { return NeedsOnly(table, *operand); });
}

}  // namespace

void Writer::operator()(const BoundInsert& statement) {
    out_.text += "INSERT OR IGNORE INTO " + Quoted(statement.table->name) + '(';
    for (std::size_t i = 0; i < statement.columns.size(); ++i)
        out_.text += (i == 0 ? "" : ",") + Quoted(statement.table->at(statement.columns[i]).name);
    out_.text += ") ";
    if (statement.query) {
        select(*statement.query);
        return;
    }
    out_.text += "VALUES";
    char before = '(';
    for (const BoundPtr& one : statement.values) {
        out_.text += std::exchange(before, ',');
        value(*one);
    }
    out_.text += ')';
}

void Writer::operator()(const BoundUpdate& statement) {
    out_.text += "UPDATE OR IGNORE " + Quoted(statement.target->definition->name) + " SET ";
    if (statement.rows.tables.size() > 1) {
        assignments(statement);
        out_.text += " WHERE _rowid_ IN (SELECT " + nameOf(*statement.target) + "._rowid_";
        rows(statement.rows);
        out_.text += ')';
        return;
    }
    itself_ = statement.target;
    assignments(statement);
    if (statement.rows.where) {
        out_.text += " WHERE ";
        condition(*statement.rows.where);
    }
}

void Writer::assignments(const BoundUpdate& statement) {
    const BoundTable& target = *statement.target;
    const bool alone = statement.rows.tables.size() == 1;
    QByteArray separator;
    for (const BoundAssignment& assignment : statement.assignments) {
        out_.text += separator + Quoted(target.definition->at(assignment.column).name) + '=';
        separator = ",";
        if (alone || NeedsOnly(&target, *assignment.value)) {
            itself_ = &target;
            value(*assignment.value);
            if (!alone) itself_ = nullptr;
            continue;
        }
        // A row with several partners takes the value of the last.
        out_.text += "(SELECT ";
        value(*assignment.value);
        rows(statement.rows);
        out_.text += (statement.rows.where ? " AND " : " WHERE ") + nameOf(target) +
                     "._rowid_=" + Quoted(target.definition->name) + "._rowid_";
        std::vector<OrderTerm> order = naturalOrder(statement.rows);
        for (OrderTerm& term : order)
            term.descending = true;
        orderBy(order);
        out_.text += " LIMIT 1)";
    }
}

void Writer::operator()(const BoundDelete& statement) {
    itself_ = statement.rows.tables.front().get();
    out_.text += "DELETE FROM " + Quoted(itself_->definition->name);
    if (statement.rows.where) {
        out_.text += " WHERE ";
        condition(*statement.rows.where);
    }
}

}  // namespace akarix
