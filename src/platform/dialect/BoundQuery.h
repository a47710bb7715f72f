#pragma once

#include <optional>

#include "platform/dialect/BoundExpression.h"
#include "platform/dialect/ParsedStatement.h"

namespace akarix {

/// A table of FROM.
struct BoundTable {
    int id = 0;  ///< its number in the statement
    const TableDef* definition = nullptr;
};

struct BoundJoin {
    bool outer;  ///< LEFT JOIN
    BoundPtr on;
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
    std::vector<BoundJoin> joins;                     ///< how each table but the first is joined
    BoundPtr where;
};

struct BoundQuery {
    std::optional<std::int64_t> top;
    std::vector<BoundItem> items;
    BoundRows rows;
    std::vector<BoundPtr> groups;
    bool grouped = false;  ///< by GROUP BY or by an aggregate
    std::vector<BoundOrder> order;
};

}  // namespace akarix
