#pragma once

#include <optional>

#include "platform/dialect/BoundExpression.h"
#include "platform/dialect/Definition.h"

namespace akarix {

/// A column of a result: its name as the statement gives it, its kind, and the stored column behind it, if
/// any.
struct ResultColumn {
    QString name;
    FieldType type = FieldType::Text;
    int size = 0;
    QString column = {};  ///< its name in the table; empty for an expression
};

struct BoundJoin {
    bool outer;  ///< LEFT JOIN
    BoundPtr on;
};

/// FROM and WHERE of any statement.
struct BoundRows {
    std::vector<std::unique_ptr<BoundTable>> tables;  ///< in the order of the text
    std::vector<BoundJoin> joins;                     ///< how each table but the first is joined
    BoundPtr where;
};

struct BoundOrder {
    BoundPtr expression;
    bool descending = false;
};

struct BoundQuery {
    std::optional<std::int64_t> top;
    std::vector<BoundPtr> items;
    std::vector<ResultColumn> columns;  ///< of the items
    BoundRows rows;
    std::vector<BoundPtr> groups;
    bool grouped = false;  ///< by GROUP BY or by an aggregate
    std::vector<BoundOrder> order;

    /// A recordset of it can be changed: rows of one table, as they stand there. The row's number comes
    /// behind the items as one more value.
    bool updatable() const { return rows.tables.size() == 1 && !grouped; }
};

struct BoundInsert {
    TablePtr table;
    std::vector<int> columns;
    std::vector<BoundPtr> values;
    std::optional<BoundQuery> query;  ///< none: `values`
};

struct BoundAssignment {
    int column;
    BoundPtr value;
};

struct BoundUpdate {
    BoundRows rows;
    const BoundTable* target = nullptr;
    std::vector<BoundAssignment> assignments;
};

struct BoundDelete {
    BoundRows rows;
};

/// A statement bound to the catalogue. It holds for every text that differs from its own in literals that
/// have a place alone.
struct BoundStatement {
    std::variant<BoundQuery, BoundInsert, BoundUpdate, BoundDelete, Definition> body;
    std::vector<LiteralPlace> places;

    const BoundQuery* query() const { return std::get_if<BoundQuery>(&body); }
};

/// A statement with the values of one text's literals, in the order of its places.
struct BoundText {
    std::shared_ptr<const BoundStatement> statement;
    std::vector<StoreValue> values;
};

}  // namespace akarix
