#pragma once

#include <vector>

#include "platform/sheet/SheetPainter.h"

namespace akarix {

constexpr double TwipsPerPoint = 20;

/// The rows to repeat above a page's own; empty when the page holds them itself or there are none.
std::vector<int> RepeatedRows(const Sheet& sheet, int firstRow);

/// The visible rows and columns of one page with their edges in twips of the unscaled sheet, from the page's
/// own corner. Repeated title rows come first, so that the numbers always rise.
struct PageGrid {
    PageGrid(const Sheet& sheet, const SheetPage& page);

    std::vector<int> rows, columns;
    std::vector<double> x, y;  ///< one more than columns and rows

    int rowCount() const { return static_cast<int>(rows.size()); }
    int columnCount() const { return static_cast<int>(columns.size()); }
    size_t index(int r, int c) const {
        return static_cast<size_t>(r) * columns.size() + static_cast<size_t>(c);
    }
    QRectF cell(int r, int c) const;
    /// Places of the visible rows from first to last: begin and end, as positions in rows.
    std::pair<int, int> rowsBetween(int first, int last) const;
    std::pair<int, int> columnsBetween(int first, int last) const;
};

}  // namespace akarix
