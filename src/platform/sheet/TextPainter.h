#pragma once

#include <QPainter>

#include "platform/sheet/Sheet.h"

namespace akarix {

/// What a cell shows and the room it has, in twips.
struct ShownText {
    QString text;
    std::vector<TextRun> runs;
    bool number = false;
    QColor color;
    QRectF box;            ///< the cell, or the merge
    double spillLeft = 0;  ///< edges that a text too wide for the box may reach over its empty neighbours
    double spillRight = 0;
};

/// True when a text too wide may run over empty neighbours, and so needs the spill edges.
bool MaySpill(const CellStyle& style, bool number);
/// Sets a text into its box by the cell's style: alignment, wrapping, shrinking, rotation.
void PaintText(QPainter& painter, const CellStyle& style, const ShownText& shown);

}  // namespace akarix
