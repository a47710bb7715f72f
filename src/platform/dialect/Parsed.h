#pragma once

#include <memory>
#include <optional>

#include "platform/dialect/Definition.h"
#include "platform/dialect/Literal.h"
#include "platform/dialect/Operator.h"

namespace akarix {

// The tree as the text gives it: names are only names, numbers have no column they belong to.

struct ParsedExpression;
using ParsedPtr = std::unique_ptr<ParsedExpression>;

struct ParsedName {
    QString table;  ///< empty when the name stands alone
    QString column;
};

struct ParsedLiteral {
    Literal literal;
    int number = -1;  ///< as LiteralPlace has it
    bool negated = false;
};

struct ParsedNull {};

struct ParsedCall {
    QString name;
    bool star = false;  ///< Count(*)
};

struct ParsedExpression {
    std::variant<ParsedName, ParsedLiteral, ParsedNull, Operator, ParsedCall> node;
    std::vector<ParsedPtr> operands;
    qsizetype position = 0;
    QStringView text;  ///< the piece of the statement it was read from
    int depth = 1;     ///< levels of the tree below and with it
};

struct ParsedJoin {
    bool outer = false;  ///< LEFT JOIN
    QString table;
    ParsedPtr on;
};

/// FROM: a table and what is joined to it, one after the other.
struct ParsedSource {
    QString first;
    std::vector<ParsedJoin> joins;
};

struct ParsedItem {
    ParsedPtr expression;  ///< none: all columns
    QString starTable;     ///< all columns of this table; empty: of every table
    QString alias;
};

struct ParsedOrder {
    ParsedPtr expression;
    bool descending = false;
};

struct ParsedQuery {
    std::optional<std::int64_t> top;
    std::vector<ParsedItem> items;
    std::optional<ParsedSource> source;
    ParsedPtr where;
    std::vector<ParsedPtr> groups;
    std::vector<ParsedOrder> order;
};

struct ParsedInsert {
    QString table;
    QStringList columns;            ///< none: all, in the table's order
    std::vector<ParsedPtr> values;  ///< VALUES, or a SELECT of values alone
    std::optional<ParsedQuery> query;
};

struct ParsedAssignment {
    ParsedName column;
    qsizetype position = 0;
    ParsedPtr value;
};

struct ParsedUpdate {
    ParsedSource source;
    std::vector<ParsedAssignment> assignments;
    ParsedPtr where;
};

struct ParsedDelete {
    QString table;
    ParsedPtr where;
};

/// A definition has no expressions and so nothing to bind.
using ParsedStatement = std::variant<ParsedQuery, ParsedInsert, ParsedUpdate, ParsedDelete, Definition>;

}  // namespace akarix
