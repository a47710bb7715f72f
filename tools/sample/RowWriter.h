#pragma once

#include <QStringList>
#include <initializer_list>

#include "platform/dao/Recordset.h"

namespace akarix::sample {

/// Adds rows to one table of the open store.
class RowWriter {
 public:
    /// \param columns names parted by commas; the other columns keep their default.
    RowWriter(const QString& table, const QString& columns);

    /// A value for each of the columns. A text without length becomes one blank.
    void add(std::initializer_list<Variant> values);

 private:
    Recordset set_;
    QStringList columns_;
};

}  // namespace akarix::sample
