#include <gtest/gtest.h>

#include "platform/sheet/SheetPainter.h"
#include "platform/sheet/SheetReader.h"

namespace akarix {
namespace {

Sheet delivered(const char* name) {
    return ReadSheet(QString(AKARIX_SOURCE_DIR "/Prt/%1.xlsx").arg(QString::fromUtf8(name)), "Sheet1");
}

void expectOnePage(const Sheet& sheet) {
    EXPECT_TRUE(sheet.warnings.isEmpty());
    const auto pages = LayOutSheet(sheet);
    ASSERT_EQ(pages.size(), 1U);
    EXPECT_GE(pages[0].scale, 0.95);  // smaller letters than the template says would be hard to read
}

TEST(Templates, BillingList) {
    Sheet sheet = delivered("請求一覧表");
    expectOnePage(sheet);
    EXPECT_EQ(sheet.extent(), (CellAddress{63, 11}));
    EXPECT_EQ(sheet.shownText({4, 11}), "請求額");
    sheet.setValue("F2", "平成23年3月");
    for (const int row : {5, 61}) {
        struct {
            const char *column, *typed, *shown;
        } const cells[] = {{"B", "12", "12"}, {"C", "0012", "0012"},         {"D", "1234.5", "1,234.5"},
                           {"F", "8", "8.0"}, {"G", "1234567", "1,234,567"}, {"K", "-12345", "-12,345"}};
        for (const auto& cell : cells) {
            const QString address = QString::fromLatin1(cell.column) + QString::number(row);
            sheet.setValue(address, QString::fromLatin1(cell.typed));
            EXPECT_EQ(sheet.shownText(ParseRange(address).first).toStdString(), cell.shown)
                << address.toStdString();
        }
        EXPECT_TRUE(sheet.styleAt({row, 3}).shrink);
    }
    sheet.setValue("F63:K63", "1234567");
    EXPECT_EQ(sheet.shownText({63, 6}), "1,234,567.0");
    EXPECT_EQ(sheet.shownText({63, 11}), "1,234,567");
    EXPECT_EQ(LayOutSheet(sheet).size(), 1U);
}

TEST(Templates, CustomerList) {
    Sheet sheet = delivered("取引先一覧");
    expectOnePage(sheet);
    EXPECT_EQ(sheet.extent(), (CellAddress{61, 7}));
    for (const int row : {4, 61}) {
        // Account numbers and codes with zeros in front, postal codes, dates in disguise: all stay as they
        // are.
        for (const char* typed : {"0012345", "0001-005", "2011/03/25", "1,234"}) {
            sheet.setValue(QString("D%1:G%1").arg(row), QString::fromLatin1(typed));
            for (int column = 4; column <= 7; ++column) {
                EXPECT_EQ(sheet.shownText({row, column}), QString::fromLatin1(typed));
            }
        }
    }
    EXPECT_TRUE(sheet.page.headerText.contains("&P"));
}

TEST(Templates, PriceList) {
    Sheet sheet = delivered("価格表");
    expectOnePage(sheet);
    sheet.setValue("C5:L24", "123456");
    EXPECT_EQ(sheet.shownText({5, 3}), "123,456 ");
    EXPECT_EQ(sheet.shownText({24, 12}), "123,456 ");
    EXPECT_TRUE(sheet.styleAt({24, 12}).shrink);
    for (const char* label : {"B5", "B24", "H2"}) {
        sheet.setValue(QString::fromLatin1(label), "0");
        EXPECT_EQ(sheet.shownText(ParseRange(QString::fromLatin1(label)).first), "0");
    }
}

TEST(Templates, Invoice) {
    Sheet sheet = delivered("請求書");
    expectOnePage(sheet);
    EXPECT_GT(sheet.page.paperWidth, sheet.page.paperHeight);
    constexpr int rightHalf = 28;
    struct {
        const char *cell, *typed, *shown;
    } const cells[] = {{"A5", "0012 様", "0012 様"},
                       {"D15", "\\-1,234,567", "\\-1,234,567"},
                       {"A18", "03/20", "03/20"},
                       {"M18", "1234", "1,234.0 "},
                       {"M20", "", ""},
                       {"A23", "12/31", "12/31"},
                       {"D30", "1-2", "1-2"},
                       {"M30", ".0", ""},
                       {"M23", "-1234.5", "-1,234.5 "},
                       {"P30", "12,345", "12,345 "},
                       {"V30", "-12,345,678", "-12,345,678 "}};
    for (const auto& cell : cells) {
        CellAddress at = ParseRange(QString::fromLatin1(cell.cell)).first;
        for (const int shift : {0, rightHalf}) {
            at.column += shift;
            const QString column = at.column > 26 ? QString("A") + QChar('A' + at.column - 27)
                                                  : QString(QChar('A' + at.column - 1));
            const QString address = column + QString::number(at.row);
            sheet.setValue(address, QString::fromUtf8(cell.typed));
            EXPECT_EQ(sheet.shownText(at).toStdString(), cell.shown) << address.toStdString();
            EXPECT_TRUE(sheet.prints(address) && sheet.styleAt(at).shrink) << address.toStdString();
        }
    }
    EXPECT_FALSE(sheet.prints("E15")) << "covered by the amount";
    EXPECT_FALSE(sheet.prints("AY5"));
}

}  // namespace
}  // namespace akarix
