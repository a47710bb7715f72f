#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "platform/runtime/Progress.h"

namespace akarix {

/// What the grid export needs of a grid: sizes in twips, texts by row and column, row 0 being the heads.
struct GridSource {
    int rows = 0;
    std::vector<int> widths;
    std::vector<int> alignments;  ///< 7 is right
    std::function<QString(int row, int column)> text;
};

/// Writes a grid as an .xlsx workbook: the created line behind the grid's last column in row 1, the title in
/// the middle of row 2, the subtitle in row 4, the grid from row 6. Columns of a width of 10 twips or less
/// are left out; a column that is right-aligned arrives as numbers, the others as text. False when the file
/// cannot be written; a file that stood there before is then unchanged. Raises 32755 when it is stopped
/// between two rows, with nothing written.
bool WriteGridWorkbook(const QString& path, const QString& title, const QString& subtitle,
                       const QString& created, const GridSource& grid,
                       Progress& progress = Progress::Silent());

}  // namespace akarix
