#include "platform/sheet/Sheet.h"

#include <gtest/gtest.h>

#include "platform/runtime/Calendar.h"
#include "platform/runtime/RuntimeError.h"
#include "support/CaseFile.h"

namespace akarix {
namespace {

TEST(Sheet, Addresses) {
    EXPECT_EQ(ParseRange("b5"), (CellRange{{5, 2}, {5, 2}}));
    EXPECT_EQ(ParseRange("$K$61:B5"), (CellRange{{5, 2}, {61, 11}}));
    EXPECT_EQ(ParseRange("XFD1048576").first, (CellAddress{1048576, 16384}));
    for (const char* bad :
         {"", "5", "B", "B0", "B-1", "5B", "A1:", ":A1", "XFE1", "A1048577", "A99999999999", "A1:B2:C3"})
        EXPECT_THROW(ParseRange(QString::fromLatin1(bad)), RuntimeError) << bad;
}

TEST(Sheet, TypedValues) {
    Sheet sheet;
    CellStyle money, text, date;
    money.numberFormat = "#,##0";
    text.numberFormat = "@";
    date.numberFormat = "ggge\"年\"m\"月\"d\"日\"";
    sheet.styles = {CellStyle(), money, text, date};
    for (int column = 2; column <= 4; ++column)
        sheet.columnStyles[column] = column - 1;

    SetClock(DateSerial(2023, 12, 31));
    for (const auto& [cells, line] : ReadTable(AKARIX_TEST_DATA "/typed.txt")) {
        sheet.setValue("A1:D1", cells[0]);
        for (int column = 1; column <= 4; ++column)
            EXPECT_EQ(sheet.shownText({1, column}), cells[column]) << line;
    }
    SetClock({});
}

TEST(Sheet, BlankingABlockKeepsStylesAndNeighbours) {
    Sheet sheet;
    sheet.styles.resize(2);
    sheet.styles[1].top.style = BorderStyle::Thin;
    sheet.cells[{5, 2}].style = 1;
    sheet.setValue("A4:L62", "x");
    sheet.setValue("B5:K61", QString());
    EXPECT_EQ(sheet.shownText({5, 2}), QString());
    EXPECT_EQ(sheet.styleAt({5, 2}).top.style, BorderStyle::Thin);
    for (const CellAddress at : {CellAddress{4, 2}, {62, 2}, {30, 1}, {30, 12}})
        EXPECT_EQ(sheet.shownText(at), "x");
    sheet.setValue("A1:XFD1048576", QString());
    EXPECT_EQ(sheet.extent(), (CellAddress{5, 2}));
    EXPECT_THROW(sheet.setValue("A1:XFD1048576", "x"), RuntimeError);
}

TEST(Sheet, MergesKeepTheFirstValue) {
    Sheet sheet;
    sheet.setValue("C2", "二");
    sheet.setValue("B3", "三");
    sheet.setMerged("B2:C3", true);
    EXPECT_EQ(sheet.shownText({2, 2}), "二");
    EXPECT_EQ(sheet.shownText({2, 3}) + sheet.shownText({3, 2}), QString());

    sheet.setValue("B2:C3", "新");
    sheet.setMerged("C3:D5", true);
    EXPECT_EQ(sheet.merges, (std::vector<CellRange>{{{2, 2}, {5, 4}}}));
    sheet.setMerged("A1:B2", false);
    EXPECT_TRUE(sheet.merges.empty());
    EXPECT_EQ(sheet.shownText({2, 2}), "新");
    EXPECT_EQ(sheet.shownText({3, 3}), QString());
}

}  // namespace
}  // namespace akarix
