#pragma once

#include <QPainter>

#include "platform/sheet/PageCells.h"

namespace akarix {

/// Draws the lines around and across cells: of two neighbours the stronger line is drawn, inside a merge
/// none.
void PaintBorders(QPainter& painter, const PageGrid& grid, const PageCells& cells);

}  // namespace akarix
