#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "platform/jet/Plan.h"

namespace akarix {

/// A condition of FindFirst ("Code=123", "Eda=1 AND Kubun=2"), bound to the columns of an open recordset and
/// evaluated on its rows in memory by the same rules as a WHERE of the dialect.
class Criteria {
 public:
    Criteria(const QString& text, const std::vector<ResultColumn>& columns);
    ~Criteria();
    Criteria(const Criteria&) = delete;
    Criteria& operator=(const Criteria&) = delete;

    bool matches(const std::vector<StoreValue>& row) const;

 private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

}  // namespace akarix
