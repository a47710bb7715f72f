#pragma once

#include "platform/dialect/BoundQuery.h"

namespace akarix {

struct BoundInsert {
    const TableDef* table;
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
    const BoundTable* target;
    std::vector<BoundAssignment> assignments;
};

struct BoundDelete {
    BoundRows rows;
};

}  // namespace akarix
