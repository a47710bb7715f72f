#pragma once

#include <vector>

#include "platform/dao/Recordset.h"
#include "platform/forms/FlexGrid.h"
#include "platform/runtime/Literals.h"
#include "toolkit/DisplayRule.h"

namespace akarix {

/// A column of a grid or a pick list, and how its text comes from a row.
struct GridColumn {
    const char16_t* head;
    int width;  ///< twips; 0 hides the column
    GridAlignment alignment = AlignRightCenter;
    const char16_t* field = nullptr;  ///< none: the screen writes it
    DisplayRule text = {};            ///< none: the plain text of the value
};
using GridColumns = std::vector<GridColumn>;

/// Gives a grid these columns and empties it, down to its head row where it has one.
void SetColumns(FlexGrid& grid, const GridColumns& columns);
/// Asks for room for all columns of a grid. \param height pixels \param bar those of frame and scroll bar
void ReserveRoom(FlexGrid& grid, int height, int bar = 24);
/// Shows the rows of a set below the head row, and as many empty ones as wanted behind them. No rows leave
/// the grid as it is.
/// \param rest writes what no field holds of a row, while the set stands there
/// \return how many rows the set has
int FillGrid(FlexGrid& grid, const GridColumns& columns, Recordset& set,
             const std::function<void(int row)>& rest = {}, int emptyRows = 0);
/// Adds a row at the end; gives its number.
int AddRow(FlexGrid& grid);

}  // namespace akarix
