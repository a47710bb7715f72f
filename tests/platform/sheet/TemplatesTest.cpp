#include <gtest/gtest.h>

#include "platform/sheet/SheetPainter.h"
#include "platform/sheet/SheetReader.h"

namespace akarix {
namespace {

Sheet delivered(const char* name) {
    return ReadSheet(QStringLiteral(AKARIX_SOURCE_DIR "/Prt/%1.xlsx").arg(QString::fromUtf8(name)),
                     QStringLiteral("Sheet1"));
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
    EXPECT_EQ(sheet.shownText({4, 11}), QStringLiteral("請求額"));
    sheet.setValue(QStringLiteral("F2"), QStringLiteral("平成23年3月"));
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
    sheet.setValue(QStringLiteral("F63:K63"), QStringLiteral("1234567"));
    EXPECT_EQ(sheet.shownText({63, 6}), QStringLiteral("1,234,567.0"));
    EXPECT_EQ(sheet.shownText({63, 11}), QStringLiteral("1,234,567"));
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
            sheet.setValue(QStringLiteral("D%1:G%1").arg(row), QString::fromLatin1(typed));
            for (int column = 4; column <= 7; ++column) {
                EXPECT_EQ(sheet.shownText({row, column}), QString::fromLatin1(typed));
            }
        }
    }
    EXPECT_TRUE(sheet.page.headerText.contains(QStringLiteral("&P")));
}

}  // namespace
}  // namespace akarix
