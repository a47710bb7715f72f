#pragma once

#include <optional>

#include "platform/jet/BoundExpression.h"
#include "platform/jet/ParsedStatement.h"

namespace akarix {

/// A table of FROM, or a query in its place.
struct BoundTable {
    int id = 0;     ///< its number in the statement
    QString alias;  ///< the name by which the statement knows it
    const TableDef* definition = nullptr;
    std::shared_ptr<const TableDef> derivedDefinition;  ///< what `definition` points at, for a query
    std::shared_ptr<const BoundQuery> derived;
    /// The engine hides the row numbers of tables inside the parentheses of an outer join.
    bool rowNumberReachable = true;
};

struct BoundSource;

/// A right join has become a left join with its sides changed over.
struct BoundJoin {
    bool outer;
    std::unique_ptr<BoundSource> left;
    std::unique_ptr<BoundSource> right;
    BoundPtr on;
};

struct BoundSource {
    std::variant<const BoundTable*, BoundJoin> node;
};

struct BoundItem {
    BoundPtr expression;
    ResultColumn column;
};

struct BoundOrder {
    BoundPtr expression;
    bool descending = false;
};

/// FROM and WHERE of any statement.
struct BoundRows {
    std::vector<std::unique_ptr<BoundTable>> tables;  ///< in the order of the text
    std::vector<BoundSource> sources;
    BoundPtr where;
};

struct BoundSelect {
    bool distinct = false;
    bool distinctRow = false;
    std::optional<ParsedTop> top;
    std::vector<BoundItem> items;
    BoundRows rows;
    std::vector<BoundPtr> groups;
    BoundPtr having;
    bool grouped = false;  ///< by GROUP BY or by an aggregate
    std::vector<BoundOrder> order;
};

struct BoundUnionOrder {
    std::size_t item;
    bool descending;
};

struct BoundQuery {
    std::vector<BoundSelect> members;
    std::vector<bool> all;
    std::vector<BoundUnionOrder> order;  ///< of a UNION; a single SELECT holds its own
};

}  // namespace akarix
