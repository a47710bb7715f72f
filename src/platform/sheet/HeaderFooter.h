#pragma once

#include <QPainter>

#include "platform/sheet/Sheet.h"

namespace akarix {

/// Draws the page setup's header and footer texts, in twips of the paper.
void PaintHeaderFooter(QPainter& painter, const Sheet& sheet, int pageNumber, int pageCount);

}  // namespace akarix
