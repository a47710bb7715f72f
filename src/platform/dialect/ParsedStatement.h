#pragma once

#include <optional>

#include "platform/dialect/ParsedExpression.h"

namespace akarix {

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
    std::vector<ParsedName> columns;  ///< none: all, in the table's order
    std::vector<ParsedPtr> values;    ///< VALUES, or a SELECT of values alone
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

/// A definition is bound while it is read: it has no expressions.
struct ParsedDefinition {
    Plan plan;
};

using ParsedStatement = std::variant<ParsedQuery, ParsedInsert, ParsedUpdate, ParsedDelete, ParsedDefinition>;

}  // namespace akarix
