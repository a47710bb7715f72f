#include "platform/forms/GridHead.h"

#include "platform/forms/Control.h"
#include "platform/forms/FlexGrid.h"

namespace akarix {

void SetHeads(FlexGrid& grid, std::span<const GridHead> heads) {
    grid.SetCols(static_cast<int>(heads.size()));
    grid.SetFixedRows(1);
    grid.SetRows(1);
    int column = 0;
    for (const GridHead& head : heads) {
        grid.SetTextMatrix(0, column, QString::fromUtf16(head.title));
        grid.SetColWidth(column, head.width);
        grid.SetColAlignment(column, head.alignment);
        ++column;
    }
}

void ReserveRoom(FlexGrid& grid, int height) {
    constexpr int kScrollBar = 24;
    int width = kScrollBar;
    for (int column = 0; column < grid.Cols(); ++column)
        width += Twips(grid.ColWidth(column));
    grid.SetRoom({width, height});
}

}  // namespace akarix
