#pragma once

#include <optional>

#include "platform/jet/ParsedExpression.h"

namespace akarix {

struct ParsedSource;

struct ParsedTable {
    QString name;
    QString alias;
    qsizetype position = 0;
};

struct ParsedDerived {
    std::unique_ptr<ParsedQuery> query;
    QString alias;
};

enum class JoinOp { Inner, Left, Right };

struct ParsedJoin {
    JoinOp op;
    std::unique_ptr<ParsedSource> left;
    std::unique_ptr<ParsedSource> right;
    ParsedPtr on;
};

/// What stands between two commas of FROM.
struct ParsedSource {
    std::variant<ParsedTable, ParsedDerived, ParsedJoin> node;
};

struct ParsedItem {
    ParsedPtr expression;  ///< none: all columns
    QString starTable;     ///< all columns of this table; empty: of every table
    QString alias;
    qsizetype position = 0;
};

struct ParsedTop {
    std::int64_t count = 0;
    bool percent = false;
};

struct ParsedSelect {
    bool distinct = false;
    bool distinctRow = false;
    std::optional<ParsedTop> top;
    std::vector<ParsedItem> items;
    std::vector<ParsedSource> sources;
    ParsedPtr where;
    std::vector<ParsedPtr> groups;
    ParsedPtr having;
};

struct ParsedOrder {
    ParsedPtr expression;
    bool descending = false;
};

struct ParsedQuery {
    std::vector<ParsedSelect> members;  ///< more than one: a UNION
    std::vector<bool> all;              ///< for each member but the first: UNION ALL
    std::vector<ParsedOrder> order;
};

struct ParsedInsert {
    QString table;
    std::vector<ParsedName> columns;  ///< none: all, in the table's order
    std::vector<ParsedPtr> values;    ///< VALUES, or a SELECT of values alone
    std::unique_ptr<ParsedQuery> query;
};

struct ParsedAssignment {
    ParsedName column;
    qsizetype position = 0;
    ParsedPtr value;
};

struct ParsedUpdate {
    std::vector<ParsedSource> sources;
    std::vector<ParsedAssignment> assignments;
    ParsedPtr where;
};

struct ParsedDelete {
    QString target;  ///< DELETE T.*; empty: the only table of FROM
    std::vector<ParsedSource> sources;
    ParsedPtr where;
};

/// A definition is bound while it is read: it has no expressions.
struct ParsedDefinition {
    Plan plan;
};

using ParsedStatement = std::variant<ParsedQuery, ParsedInsert, ParsedUpdate, ParsedDelete, ParsedDefinition>;

}  // namespace akarix
