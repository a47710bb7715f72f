#include <algorithm>

#include "platform/cipher/Writer.h"

namespace akarix {
namespace {

/// Whether a value can be written without the other tables of a joined update.
bool NeedsOnly(const BoundTable* table, const BoundExpression& expression) {
    if (const auto* column = std::get_if<BoundColumn>(&expression.node)) return column->table == table;
    const auto operands = OperandsOf(expression);
    return std::all_of(operands.begin(), operands.end(),
                       [&](const BoundPtr& operand) { return NeedsOnly(table, *operand); });
}

}  // namespace

void Writer::insert(const BoundInsert& statement) {
    out_ += "INSERT OR IGNORE INTO " + Quoted(statement.table->name) + '(';
    for (std::size_t i = 0; i < statement.columns.size(); ++i) {
        const auto column = static_cast<std::size_t>(statement.columns[i]);
        out_ += (i == 0 ? "" : ",") + Quoted(statement.table->columns[column].name);
    }
    out_ += ") ";
    if (statement.query) {
        query(*statement.query, false);
        return;
    }
    out_ += "VALUES(";
    list(statement.values);
    out_ += ')';
}

void Writer::update(const BoundUpdate& statement) {
    out_ += "UPDATE OR IGNORE " + Quoted(statement.target->definition->name) + " SET ";
    if (statement.rows.tables.size() > 1) {
        assignments(statement);
        out_ += " WHERE ";
        targetRows(statement.rows, *statement.target);
        return;
    }
    itself_ = statement.target;
    assignments(statement);
    if (statement.rows.where) {
        out_ += " WHERE ";
        condition(*statement.rows.where);
    }
}

void Writer::assignments(const BoundUpdate& statement) {
    const BoundTable& target = *statement.target;
    const bool alone = statement.rows.tables.size() == 1;
    QByteArray separator;
    for (const BoundAssignment& assignment : statement.assignments) {
        const auto column = static_cast<std::size_t>(assignment.column);
        out_ += separator + Quoted(target.definition->columns[column].name) + '=';
        separator = ",";
        if (alone || NeedsOnly(&target, *assignment.value)) {
            itself_ = &target;
            value(*assignment.value);
            if (!alone) itself_ = nullptr;
            continue;
        }
        // A row with several partners takes the value of the last.
        out_ += "(SELECT ";
        value(*assignment.value);
        rows(statement.rows);
        out_ += (statement.rows.where ? " AND " : " WHERE ") + nameOf(target) +
                "._rowid_=" + Quoted(target.definition->name) + "._rowid_";
        std::vector<OrderTerm> order = naturalOrder(statement.rows);
        for (OrderTerm& term : order)
            term.descending = true;
        orderBy(order);
        out_ += " LIMIT 1)";
    }
}

void Writer::remove(const BoundDelete& statement) {
    itself_ = statement.rows.tables.front().get();
    out_ += "DELETE FROM " + Quoted(itself_->definition->name);
    if (statement.rows.where) {
        out_ += " WHERE ";
        condition(*statement.rows.where);
    }
}

void Writer::targetRows(const BoundRows& rows, const BoundTable& target) {
    out_ += "_rowid_ IN (SELECT " + nameOf(target) + "._rowid_";
    this->rows(rows);
    out_ += ')';
}

}  // namespace akarix
