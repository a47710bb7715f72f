#pragma once

#include <span>

namespace akarix {

class FlexGrid;

/// A column of a grid with a head row, as it is written into the table of a screen's columns.
struct GridHead {
    const char16_t* title;
    int width;          ///< twips; 0 hides the column
    int alignment = 7;  ///< GridAlignment
};

/// Gives an empty grid these columns under a fixed head row.
void SetHeads(FlexGrid& grid, std::span<const GridHead> heads);
/// Asks for room for all columns of a grid and the scroll bar. \param height pixels
void ReserveRoom(FlexGrid& grid, int height);

}  // namespace akarix
