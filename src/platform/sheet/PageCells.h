#pragma once

#include "platform/sheet/SheetLayout.h"

namespace akarix {

/// What stands in the places of a page's grid: cells, styles and merges, looked up once.
class PageCells {
 public:
    static constexpr int NoMerge = -1;

    PageCells(const Sheet& sheet, const PageGrid& grid);

    const Cell* cell(int r, int c) const { return cells_[grid_.index(r, c)]; }
    const CellStyle& style(int r, int c) const { return *styles_[grid_.index(r, c)]; }
    /// The number of the merge that covers a place.
    int merge(int r, int c) const { return merges_[grid_.index(r, c)]; }
    bool blank(int r, int c) const;
    /// True for the place that shows a merge: the first of it on this page.
    bool showsMerge(int r, int c) const;
    /// A merge's whole block, which may reach beyond the page's edges.
    QRectF mergeBox(int r, int c) const;

 private:
    const Sheet& sheet_;
    const PageGrid& grid_;
    std::vector<const Cell*> cells_;
    std::vector<const CellStyle*> styles_;
    std::vector<int> merges_;
};

}  // namespace akarix
