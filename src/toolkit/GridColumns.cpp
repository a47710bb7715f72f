#include "toolkit/GridColumns.h"

#include <optional>

#include "platform/forms/Control.h"
#include "values/Text.h"

namespace akarix {

void SetColumns(FlexGrid& grid, const GridColumns& columns) {
    grid.SetCols(static_cast<int>(columns.size()));
    grid.SetRows(grid.FixedRows());
    int col = 0;
    for (const GridColumn& column : columns) {
        if (grid.FixedRows() > 0) grid.SetTextMatrix(0, col, QString::fromUtf16(column.head));
        grid.SetColWidth(col, column.width);
        grid.SetColAlignment(col++, column.alignment);
    }
}

void ReserveRoom(FlexGrid& grid, int height, int bar) {
    int width = bar;
    for (int column = 0; column < grid.Cols(); ++column)
        width += Twips(grid.ColWidth(column));
    grid.SetRoom({width, height});
}

int FillGrid(FlexGrid& grid, const GridColumns& columns, Recordset& set,
             const std::function<void(int row)>& rest, int emptyRows) {
    if (set.Eof()) return 0;
    set.MoveLast();
    const int count = set.RecordCount();
    set.MoveFirst();
    struct Source {
        int col;
        const Field* field;  // found once, not for each of the rows
        const GridColumn* column;
        // A value that equals the one above it is not put through its mask again.
        std::optional<Variant> above = {};
        QString shown = {};
    };
    std::vector<Source> sources;
    for (int col = 0; const GridColumn& column : columns) {
        if (column.field) sources.push_back({col, &set.Fields(QString::fromUtf16(column.field)), &column});
        ++col;
    }
    int row = grid.FixedRows();
    grid.SetRows(row + count + emptyRows);
    for (; !set.Eof(); ++row, set.MoveNext()) {
        for (Source& source : sources) {
            if (const Variant value = source.field->Value(); source.above != value) {
                source.shown = source.column->text ? source.column->text(value) : NullToEmpty(value);
                source.above = value;
            }
            grid.SetTextMatrix(row, source.col, source.shown);
        }
        if (rest) rest(row);
    }
    return count;
}

int AddRow(FlexGrid& grid) {
    grid.SetRows(grid.Rows() + 1);
    return grid.Rows() - 1;
}

}  // namespace akarix
