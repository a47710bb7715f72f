#pragma once

#include <QString>
#include <vector>

#include "platform/dialect/BoundStatement.h"

namespace akarix {

/// The condition of FindFirst, a column and what it is to be equal to ("Code=123"), held against the rows of
/// an open recordset by the same rules as in a WHERE. Raises 3061 for a column the recordset does not have,
/// 3464 for kinds that cannot be compared and 3075 for anything else.
class Criteria {
 public:
    Criteria(const QString& text, const std::vector<ResultColumn>& columns);

    bool matches(const std::vector<StoreValue>& row) const;

 private:
    std::size_t column_ = 0;
    StoreValue wanted_;
};

}  // namespace akarix
