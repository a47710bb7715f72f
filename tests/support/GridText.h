#pragma once

#include <QStringList>

#include "platform/forms/FlexGrid.h"

namespace akarix {

/// A row of a grid, or the columns asked for, as "a|b|c".
inline QString GridRow(const FlexGrid& grid, int row, int first = 0, int last = -1) {
    QStringList cells;
    for (int col = first; col <= (last < 0 ? grid.Cols() - 1 : last); ++col)
        cells += grid.TextMatrix(row, col);
    return cells.join(u'|');
}

/// The rows below the head.
inline QStringList GridRows(const FlexGrid& grid, int first = 0, int last = -1) {
    QStringList rows;
    for (int row = grid.FixedRows(); row < grid.Rows(); ++row)
        rows += GridRow(grid, row, first, last);
    return rows;
}

}  // namespace akarix
