#include <QDir>
#include <QTemporaryDir>

#include "output/EX.h"
#include "platform/forms/FlexGrid.h"
#include "platform/forms/TextBox.h"
#include "platform/runtime/Clock.h"
#include "platform/runtime/DateSerial.h"
#include "platform/sheet/SheetReader.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

class GridToExcelTest : public ScreenTest {
 protected:
    void SetUp() override {
        SetClock(DateSerial(2023, 4, 15));
        grid_.SetCols(4);
        grid_.SetRows(2);
        const int widths[] = {900, 2000, 0, 1200};
        const char* texts[2][4] = {{"ｺｰﾄﾞ", "得意先", "隠し", "請求額"}, {"000012", "=山田", "9", "-1,234"}};
        for (int column = 0; column < 4; ++column) {
            grid_.SetColWidth(column, widths[column]);
            for (int row = 0; row < 2; ++row) {
                grid_.SetTextMatrix(row, column, texts[row][column]);
            }
        }
        grid_.SetColAlignment(3, AlignRightCenter);
    }
    void TearDown() override {
        SetClock(Date());
        ScreenTest::TearDown();
    }
    /// Exports and answers the question for the file.
    void exportTo(const QString& path) {
        clerk.expect("SaveAs_frm", [&](QWidget&) {
            clerk.find<TextBox>("Path").SetText(path);
            clerk.click("Save");
        });
        GridToExcel("請求一覧", "2023/4分", "1 ～ 9", grid_);
    }

    FlexGrid grid_;
    QTemporaryDir folder;
};

TEST_F(GridToExcelTest, LeavesAWorkbookWithCodesAsTextAndFiguresAsNumbers) {
    const QString path = folder.filePath("a.xlsx");
    exportTo(path);
    const Sheet sheet = ReadSheet(path, "Sheet1");
    const auto text = [&](int row, int column) { return sheet.shownText({row, column}); };

    EXPECT_EQ(text(1, 4), "作成日 : 2023/04/15");
    EXPECT_EQ(text(2, 1), "請求一覧");
    EXPECT_EQ(sheet.styleAt({2, 1}).font.size, 18);
    EXPECT_EQ(text(4, 1), "2023/4分     1 ～ 9");
    EXPECT_EQ(text(6, 3), "請求額");
    EXPECT_EQ(text(7, 1), "000012");
    EXPECT_EQ(text(7, 2), "=山田");
    EXPECT_EQ(sheet.cells.at({7, 3}).number, -1234);
    EXPECT_FALSE(sheet.cells.at({7, 1}).number.has_value());
    EXPECT_EQ(sheet.styleAt({6, 1}).top.style, BorderStyle::Thin);
    EXPECT_EQ(sheet.styleAt({7, 3}).bottom.style, BorderStyle::Thin);
    EXPECT_EQ(sheet.extent(), (CellAddress{7, 4}));
}

TEST_F(GridToExcelTest, OneVisibleColumnLosesTheTitleOnly) {
    grid_.SetColWidth(1, 0);
    grid_.SetColWidth(3, 0);
    exportTo(folder.filePath("a.xlsx"));
    const Sheet sheet = ReadSheet(folder.filePath("a.xlsx"), "Sheet1");
    EXPECT_EQ(sheet.shownText({7, 1}), "000012");
    for (const auto& [address, cell] : sheet.cells) {
        EXPECT_NE(cell.text, "請求一覧");
    }
}

TEST_F(GridToExcelTest, CancelledNothingIsLeft) {
    clerk.expect("SaveAs_frm", [&](QWidget&) {
        EXPECT_TRUE(clerk.text("Path").endsWith("請求一覧_20230415.xlsx"))
            << clerk.text("Path").toStdString();
        clerk.find<TextBox>("Path").SetText(folder.filePath("a.xlsx"));
        clerk.press(Qt::Key_Escape);
    });
    GridToExcel("請求一覧", "", "", grid_);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList());
}

}  // namespace
}  // namespace akarix
