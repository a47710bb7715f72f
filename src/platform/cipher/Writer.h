#pragma once

#include <QByteArray>

#include "platform/cipher/Identifier.h"
#include "platform/dialect/BoundChange.h"

namespace akarix {

/// A parameter of a written statement: which literal of the text it is and what that becomes.
struct Slot {
    int lifted;
    bool negated;
    LiteralUse use;
    const ColumnDef* target = nullptr;  ///< the column it must fit, as the catalogue has it

    friend bool operator==(const Slot&, const Slot&) = default;
};

/// Writes one bound statement in the engine's language. Rows come in a settled order, see SelectWriter.cpp.
class Writer {
 public:
    /// \param rowNumber the number of the row of the only table comes behind the columns.
    void query(const BoundQuery& query, bool rowNumber);
    void insert(const BoundInsert& statement);
    void update(const BoundUpdate& statement);
    void remove(const BoundDelete& statement);

    const QByteArray& text() const { return out_; }
    const std::vector<Slot>& parameters() const { return parameters_; }
    /// Whether a value is computed that may turn out an error when some rows are changed already.
    bool computes() const { return computes_; }

 private:
    struct OrderTerm {
        QByteArray text;
        const char* collation;  // empty: none
        bool descending;
    };
    struct Order {
        std::vector<OrderTerm> terms;
        std::size_t asked = 0;  // so many of them are the statement's own; the others settle ties
    };
    struct Shape {
        bool aliased = false;    // columns are named c0, c1 ... for the query around
        bool rowNumber = false;  // as the last column, named r
    };

    // Expressions
    void value(const BoundExpression& expression);
    void condition(const BoundExpression& expression);
    QByteArray valueText(const BoundExpression& expression);
    void list(const std::vector<BoundPtr>& expressions);
    void node(const BoundColumn& n);
    void node(const BoundLiteral& n);
    void node(const BoundNull& n);
    void node(const BoundNegation& n);
    void node(const BoundArithmetic& n);
    void arithmetic(const BoundArithmetic& n);
    void node(const BoundConversion& n);
    void node(const BoundCall& n);
    void node(const BoundAggregate& n);
    void test(const BoundNot& n);
    void test(const BoundLogic& n);
    void test(const BoundComparison& n);
    void test(const BoundIsNull& n);
    void test(const BoundLike& n);
    void logicOperand(const BoundPtr& operand, LogicOp op);
    void constant(const StoreValue& constant);

    // Queries
    void topSelect(const BoundQuery& query, const Shape& shape);
    void body(const BoundQuery& query, const Shape& shape, const Order* keys);
    void rows(const BoundRows& rows);
    void groupBy(const BoundQuery& query);
    void orderBy(const std::vector<OrderTerm>& terms);
    Order orderOf(const BoundQuery& query);
    void addTerm(std::vector<OrderTerm>& terms, const BoundExpression& expression, bool descending);
    std::vector<OrderTerm> naturalOrder(const BoundRows& rows);
    std::vector<OrderTerm> rowNumbers(const BoundRows& rows);

    // Changes
    void targetRows(const BoundRows& rows, const BoundTable& target);
    void assignments(const BoundUpdate& statement);

    QByteArray nameOf(const BoundTable& table) const;
    QByteArray columnText(const BoundTable& table, int column) const;

    QByteArray out_;
    std::vector<Slot> parameters_;
    bool computes_ = false;
    const BoundTable* itself_ = nullptr;     ///< the table of a change, which has no other name than its own
    const BoundRows* aggregated_ = nullptr;  ///< the rows of the query being written, for First
};

}  // namespace akarix
