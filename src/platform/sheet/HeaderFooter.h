#pragma once

#include <QPainter>

#include "platform/sheet/Sheet.h"

namespace akarix {

/// Draws the page setup's header and footer texts, in twips of the paper.
/// \param scale of their letters; the margins that they stand at stay
void PaintHeaderFooter(QPainter& painter, const Sheet& sheet, double scale, int pageNumber, int pageCount);

}  // namespace akarix
