#pragma once

#include <QPainter>
#include <vector>

#include "platform/sheet/Sheet.h"

namespace akarix {

/// One page of a sheet: which rows and columns stand on it, and where, in points from the paper's corner.
struct SheetPage {
    int firstRow = 0, lastRow = 0, firstColumn = 0, lastColumn = 0;
    double scale = 1;  ///< of the sheet's lengths on paper
    double originX = 0, originY = 0;
};

/// Breaks a sheet into pages by its page setup, down before across; knows no device. An empty sheet is one
/// page.
std::vector<SheetPage> LayOutSheet(const Sheet& sheet);

/// Paints one page. The painter's unit is the twip, its origin the paper's upper left corner.
void PaintSheet(QPainter& painter, const Sheet& sheet, const SheetPage& page, int pageNumber, int pageCount);

}  // namespace akarix
