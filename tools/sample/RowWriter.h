#pragma once

#include <QString>
#include <initializer_list>
#include <utility>

#include "platform/dao/Recordset.h"

namespace akarix::sample {

/// Adds rows to one table of the open store.
class RowWriter {
 public:
    explicit RowWriter(const QString& table);

    /// Columns that are not named keep their default. A text without length becomes one blank.
    void add(std::initializer_list<std::pair<QString, Variant>> values);

 private:
    Recordset set_;
};

}  // namespace akarix::sample
