#pragma once

#include <QString>

namespace akarix {

/// A sheet address moved by an offset: ("Z", 5, 1, 2) gives "AA7". Columns have one or two capital letters.
QString CellAddress(const QString& column, int row, int columnOffset, int rowOffset);

}  // namespace akarix
