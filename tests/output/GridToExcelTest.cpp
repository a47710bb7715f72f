#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include "output/EX.h"
#include "platform/runtime/Calendar.h"
#include "platform/sheet/SheetReader.h"
#include "support/ListScreen.h"
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
            for (int row = 0; row < 2; ++row)
                grid_.SetTextMatrix(row, column, texts[row][column]);
        }
        grid_.SetColAlignment(3, AlignRightCenter);
    }
    void TearDown() override {
        SetClock(Date());
        ScreenTest::TearDown();
    }

    FlexGrid grid_;
    QTemporaryDir folder;
    const QString path = folder.filePath("a.xlsx");
};

TEST_F(GridToExcelTest, WhatTheGridShowsGoesToTheFileAskedFor) {
    AnswerSaveAs(clerk, path);
    grid_.show();
    grid_.setFocus();
    clerk.settle();
    GridToExcel("請求一覧", "2023/4分", "1 ～ 9", grid_);
    ASSERT_TRUE(QTest::qWaitFor([this] { return clerk.isOpen("Notice"); }));
    EXPECT_TRUE(clerk.text("Notice").endsWith(path + " に書きました。"));
    const Sheet sheet = ReadSheet(path, "Sheet1");
    QStringList found;
    for (const CellAddress at : {CellAddress{1, 4}, {4, 1}, {7, 1}, {7, 2}, {7, 3}})
        found += sheet.shownText(at);
    EXPECT_EQ(found.join(u'|'), u"作成日 : 2023/04/15|2023/4分     1 ～ 9|000012|=山田|-1,234");
}

TEST_F(GridToExcelTest, CancelledNothingIsLeft) {
    clerk.expect("SaveAs_frm", [&](QWidget&) {
        EXPECT_TRUE(clerk.text("Path").endsWith("請求一覧_20230415.xlsx"))
            << clerk.text("Path").toStdString();
        clerk.find<TextBox>("Path").SetText(path);
        clerk.press(Qt::Key_Escape);
    });
    GridToExcel("請求一覧", "", "", grid_);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList());
}

}  // namespace
}  // namespace akarix
