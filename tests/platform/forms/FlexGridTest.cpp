#include "platform/forms/FlexGrid.h"

#include <QTest>
#include <QVBoxLayout>

#include "platform/forms/Form.h"
#include "support/Raised.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

class Grid : public ScreenTest {
 protected:
    Grid() {
        auto* whole = new QVBoxLayout(&form);
        whole->addWidget(&grid);
        form.resize(400, 300);
        form.on(&grid, &FlexGrid::RowColChange,
                [this] { log << QString("%1,%2").arg(grid.Row()).arg(grid.Col()); });
        form.on(&grid, &FlexGrid::Click,
                [this] { log << QString("click %1,%2").arg(grid.MouseRow()).arg(grid.MouseCol()); });
    }

    void fill(int rows, int cols) {
        grid.SetCols(cols);
        grid.SetRows(rows);
        for (int row = 0; row < rows; ++row)
            for (int col = 0; col < cols; ++col)
                grid.SetTextMatrix(row, col, cellText(row, col));
        form.Show();
        SetFocus(&grid);
        clerk.settle();
        log.clear();
    }
    static QString cellText(int row, int col) { return QString("%1:%2").arg(row).arg(col); }
    std::string played() { return log.join(u' ').toStdString(); }

    Form form{"Grid_frm", ""};
    FlexGrid& grid = *new FlexGrid;
    QStringList log;
};

TEST_F(Grid, TextsStayWhereTheyAreWhenTheShapeChanges) {
    fill(4, 3);
    grid.SetRows(6);
    grid.SetCols(5);
    EXPECT_EQ(grid.TextMatrix(3, 2), cellText(3, 2));
    EXPECT_EQ(grid.TextMatrix(5, 4), u"");
    grid.SetCols(2);
    grid.SetRows(3);
    EXPECT_EQ(grid.TextMatrix(2, 1), cellText(2, 1));
    grid.SetRows(4);
    EXPECT_EQ(grid.TextMatrix(3, 0), u"");  // what was cut away does not come back
    grid.SetFixedRows(0);
    EXPECT_EQ(grid.TextMatrix(0, 1), cellText(0, 1));
}

TEST_F(Grid, OutsideTheGridRaises) {
    fill(2, 2);
    EXPECT_EQ(Raised([&] { grid.TextMatrix(2, 0); }), 381);
    EXPECT_EQ(Raised([&] { grid.SetTextMatrix(0, 2, ""); }), 9);
    EXPECT_EQ(Raised([&] { grid.SetRow(-1); }), 381);
    EXPECT_EQ(Raised([&] { grid.SetCol(2); }), 9);
    EXPECT_EQ(Raised([&] { grid.SetColWidth(2, 100); }), 9);
    grid.SetRows(0);
    EXPECT_EQ(Raised([&] { grid.TextMatrix(0, 0); }), 381);
}

TEST_F(Grid, KeysMoveThePresentCellButNotOntoTheHead) {
    fill(200, 3);
    EXPECT_EQ(grid.Row(), 1);
    clerk.up();
    clerk.down();
    clerk.press(Qt::Key_Right);
    clerk.press(Qt::Key_Home);
    EXPECT_EQ(played(), "2,0 2,1 2,0");
    clerk.press(Qt::Key_PageDown);
    EXPECT_GT(grid.Row(), 5);
    clerk.press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(grid.Row(), 199);
    clerk.type("5");  // letters search nothing
    EXPECT_EQ(grid.Row(), 199);
}

TEST_F(Grid, AClickMovesThePresentCellButNotOnTheHeadOrBesideTheCells) {
    fill(5, 3);
    clerk.clickCell(grid, 3, 2);
    grid.SetRow(3);
    grid.SetRow(4);
    EXPECT_EQ(played(), "3,2 click 3,2 4,2");
    log.clear();
    clerk.clickCell(grid, 0, 1);
    EXPECT_EQ(played(), "click 0,1");
    EXPECT_EQ(grid.Row(), 4);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, QPoint(10, grid.viewport()->height() - 5));
    EXPECT_EQ(played(), "click 0,1") << "beside the cells it is no click";
    EXPECT_EQ(grid.MouseRow(), -1);
    grid.SetFixedRows(0);
    clerk.clickCell(grid, 0, 1);
    EXPECT_EQ(grid.Row(), 0) << "without a head every row can be picked";
}

TEST_F(Grid, ThePresentRowStaysInsideWithoutAWord) {
    fill(10, 2);
    grid.SetRow(9);
    log.clear();
    grid.SetRows(4);
    EXPECT_EQ(grid.Row(), 3);
    grid.SetRows(1);
    EXPECT_EQ(grid.Row(), 0);
    EXPECT_TRUE(grid.CellRect().isEmpty());
    grid.SetRows(3);
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(played(), "");
}

TEST_F(Grid, CellPlaceFollowsWidthsAndScrolling) {
    fill(300, 4);
    grid.SetColWidth(0, 600);
    grid.SetColWidth(1, 0);
    grid.SetColWidth(2, 1500);
    grid.SetCol(2);
    const QRect top = grid.CellRect();
    EXPECT_EQ(top.width(), 100 - 1);  // less the grid line
    EXPECT_EQ(top.left(), grid.viewport()->x() + 40);
    grid.SetRow(250);
    EXPECT_TRUE(grid.rect().contains(grid.CellRect()));
    grid.SetRows(400);
    grid.SetCols(5);
    EXPECT_EQ(grid.ColWidth(2), 1500);
    EXPECT_EQ(grid.ColWidth(1), 0);
}

}  // namespace
}  // namespace akarix
