#include "platform/sheet/GridExport.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/runtime/RuntimeError.h"
#include "platform/sheet/SheetReader.h"

namespace akarix {
namespace {

constexpr int kLeft = 1, kCentered = 4, kRight = 7;

class GridExport : public testing::Test {
 protected:
    bool write(const std::vector<QStringList>& rows, const std::vector<int>& widths,
               const std::vector<int>& alignments) {
        const GridSource source{static_cast<int>(rows.size()), widths, alignments,
                                [&rows](int r, int c) { return rows[static_cast<size_t>(r)][c]; }};
        return WriteGridWorkbook(path_, "請求一覧", "2011/3分", "作成日 : 2011/03/25", source);
    }
    Sheet read() const { return ReadSheet(path_, "Sheet1"); }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath("一覧.xlsx");
};

TEST_F(GridExport, StoppedBetweenTwoRowsNothingIsWritten) {
    struct : Progress {
        void stage(const QString&, bool) override {}
        void step(int done, int total) override {
            EXPECT_EQ(total, 3);
            if (done == 2) throw RuntimeError(CancelledByOperator);
        }
    } stopping;
    const GridSource source{3, {900}, {kLeft}, [](int, int) { return QString("x"); }};
    EXPECT_THROW(WriteGridWorkbook(path_, "a", "b", "c", source, stopping), RuntimeError);
    EXPECT_TRUE(QDir(folder_.path()).isEmpty());
}

TEST_F(GridExport, WhatStandsWhere) {
    ASSERT_TRUE(write({{"ｺｰﾄﾞ", "id", "得意先", "請求額"},
                       {"00012", "9", "ガス & <器具>", "1,234"},
                       {"00013", "9", QString(), "未"}},
                      {900, 10, 2400, 1200}, {kCentered, kRight, kLeft, kRight}));
    const Sheet sheet = read();
    QStringList found;
    for (const auto& [at, cell] : sheet.cells)
        if (!cell.text.isEmpty() || cell.number)
            found += QString("%1,%2 %3").arg(at.row).arg(at.column).arg(sheet.shownText(at));
    EXPECT_EQ(found, (QStringList{"1,4 作成日 : 2011/03/25", "2,1 請求一覧", "4,1 2011/3分", "6,1 ｺｰﾄﾞ",
                                  "6,2 得意先", "6,3 請求額", "7,1 00012", "7,2 ガス & <器具>", "7,3 1,234",
                                  "8,1 00013", "8,3 未"}));
    EXPECT_EQ(sheet.extent(), (CellAddress{8, 4}));
    EXPECT_EQ(sheet.styleAt({7, 1}).numberFormat, "@");
    EXPECT_EQ(sheet.styleAt({7, 1}).horizontal, HorizontalAlign::Center);
    EXPECT_EQ(sheet.cells.at({7, 3}).number, 1234);
    EXPECT_EQ(sheet.columnWidth(2), 120);
    EXPECT_EQ(sheet.page.titleFirstRow, 6);
    EXPECT_EQ(sheet.page.fitHeight, 0);
    EXPECT_TRUE(sheet.warnings.isEmpty());
}

TEST_F(GridExport, RightAlignedNumbersLookAsOnTheScreen) {
    const QStringList numbers{"0", "-1,234,567", "1234567", "12.50", "1,234.5", "007", "-3", "99999999999"};
    const QStringList texts{"", "12%", "2011/03/25", "3-1", "12345678901234567890"};
    std::vector<QStringList> rows{{"数"}};
    for (const QString& text : numbers + texts)
        rows.push_back({text});
    ASSERT_TRUE(write(rows, {1500}, {kRight}));
    const Sheet sheet = read();
    for (size_t i = 1; i < rows.size(); ++i) {
        const CellAddress at{static_cast<int>(i) + 6, 1};
        EXPECT_EQ(sheet.shownText(at), rows[i][0]);
        EXPECT_EQ(sheet.cells.at(at).number.has_value(), numbers.contains(rows[i][0]))
            << rows[i][0].toStdString();
    }
    EXPECT_EQ(sheet.shownText({2, 1}), QString());  // one column: no middle, no title
    EXPECT_EQ(sheet.shownText({4, 1}), "2011/3分");
}

TEST_F(GridExport, WhatCannotBeWrittenLeavesNothing) {
    const QString file = path_;
    path_ = folder_.filePath("無い/一覧.xlsx");
    EXPECT_FALSE(write({{"a"}}, {900}, {kLeft}));
    path_ = folder_.filePath("ここ");
    ASSERT_TRUE(QDir().mkpath(path_ + "/x"));
    EXPECT_FALSE(write({{"a"}}, {900}, {kLeft}));
    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files), QStringList());
    path_ = file;
    EXPECT_TRUE(write({{"a"}}, {900}, {kLeft}));
    EXPECT_TRUE(write({{"b"}}, {900}, {kLeft}));
    EXPECT_EQ(read().shownText({6, 1}), "b");
    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files), QStringList{"一覧.xlsx"});
}

}  // namespace
}  // namespace akarix
