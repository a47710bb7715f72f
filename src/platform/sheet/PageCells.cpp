#include "platform/sheet/PageCells.h"

#include <algorithm>

namespace akarix {

PageCells::PageCells(const Sheet& sheet, const PageGrid& grid) : sheet_(sheet), grid_(grid) {
    const size_t count = grid.rows.size() * grid.columns.size();
    cells_.resize(count);
    styles_.resize(count);
    merges_.assign(count, NoMerge);

    for (int r = 0; r < grid.rowCount(); ++r) {
        for (int c = 0; c < grid.columnCount(); ++c) {
            const CellAddress here{grid.rows[static_cast<size_t>(r)], grid.columns[static_cast<size_t>(c)]};
            const auto held = sheet.cells.find(here);
            const bool own = held != sheet.cells.end();
            cells_[grid.index(r, c)] = own ? &held->second : nullptr;
            styles_[grid.index(r, c)] =
                own ? &sheet.styles[static_cast<size_t>(held->second.style)] : &sheet.styleAt(here);
        }
    }
    for (size_t i = 0; i < sheet.merges.size(); ++i) {
        const CellRange& merge = sheet.merges[i];
        const auto [top, bottom] = grid.rowsBetween(merge.first.row, merge.last.row);
        const auto [left, right] = grid.columnsBetween(merge.first.column, merge.last.column);
        for (int r = top; r < bottom; ++r)
            for (int c = left; c < right; ++c)
                merges_[grid.index(r, c)] = static_cast<int>(i);
    }
}

bool PageCells::blank(int r, int c) const {
    const Cell* held = cell(r, c);
    return merge(r, c) == NoMerge && (!held || (held->text.isEmpty() && !held->number));
}

bool PageCells::showsMerge(int r, int c) const {
    const int own = merge(r, c);
    return (r == 0 || merge(r - 1, c) != own) && (c == 0 || merge(r, c - 1) != own);
}

QRectF PageCells::mergeBox(int r, int c) const {
    const CellRange& merge = sheet_.merges[static_cast<size_t>(this->merge(r, c))];
    double x = grid_.x[static_cast<size_t>(c)];
    double y = grid_.y[static_cast<size_t>(r)];
    double width = 0;
    double height = 0;
    for (int column = merge.first.column; column <= merge.last.column; ++column) {
        const double own = std::max(0.0, sheet_.columnWidth(column)) * TwipsPerPoint;
        if (column < grid_.columns[static_cast<size_t>(c)]) x -= own;
        width += own;
    }
    for (int row = merge.first.row; row <= merge.last.row; ++row) {
        const double own = std::max(0.0, sheet_.rowHeight(row)) * TwipsPerPoint;
        if (row < grid_.rows[static_cast<size_t>(r)]) y -= own;
        height += own;
    }
    return {x, y, width, height};
}

}  // namespace akarix
