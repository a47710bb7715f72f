#pragma once

#include <QByteArray>

#include "platform/dialect/BoundStatement.h"

namespace akarix {

/// A statement in the engine's language, its values as ?1, ?2 ...
struct Written {
    QByteArray text;
    bool computes = false;  ///< a value may turn out an error when some rows are changed already
};
Written Write(const BoundStatement& statement);

/// Writes one bound statement. Rows come in a settled order, see SelectWriter.cpp.
class Writer {
 public:
    explicit Writer(const std::vector<LiteralPlace>& places) : places_(places) {}

    void operator()(const BoundQuery& query);
    void operator()(const BoundInsert& statement);
    void operator()(const BoundUpdate& statement);
    void operator()(const BoundDelete& statement);
    void operator()(const Definition&) {}

    Written written() && { return std::move(out_); }

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

    // Expressions
    void value(const BoundExpression& expression);
    void condition(const BoundExpression& expression);
    QByteArray valueText(const BoundExpression& expression);
    void literal(const BoundLiteral& literal);
    void constant(const StoreValue& constant);
    void operation(Operator op, const BoundExpression& expression);
    void test(Operator op, const std::vector<BoundPtr>& operands);
    void arithmetic(Operator op, const BoundExpression& expression);
    void conversion(Form form, const BoundExpression& operand);
    void fit(const ColumnDef& column, const BoundExpression& operand);
    void aggregate(Aggregate which, const BoundExpression& expression);
    void call(const char* function, const std::vector<BoundPtr>& arguments);

    // Queries
    void select(const BoundQuery& query);
    void topSelect(const BoundQuery& query);
    void body(const BoundQuery& query, const Order* keys);
    void rows(const BoundRows& rows);
    void groupBy(const BoundQuery& query);
    void orderBy(const std::vector<OrderTerm>& terms);
    Order orderOf(const BoundQuery& query);
    void addTerm(std::vector<OrderTerm>& terms, const BoundExpression& expression, bool descending);
    std::vector<OrderTerm> naturalOrder(const BoundRows& rows, bool byKey = true);

    // Changes
    void assignments(const BoundUpdate& statement);

    QByteArray nameOf(const BoundTable& table) const;
    QByteArray columnText(const BoundTable& table, int column) const;

    const std::vector<LiteralPlace>& places_;
    Written out_;
    bool rowNumber_ = false;                 ///< the number of the row comes behind the items
    const BoundTable* itself_ = nullptr;     ///< the table of a change, which has no other name than its own
    const BoundRows* aggregated_ = nullptr;  ///< the rows of the query being written, for First
};

}  // namespace akarix
