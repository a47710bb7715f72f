#include <gtest/gtest.h>

#include "platform/sheet/NumberFormat.h"
#include "support/CaseFile.h"

namespace akarix {
namespace {

TEST(NumberFormat, FollowsTheTable) {
    for (const auto& [cells, line] : ReadTable(AKARIX_TEST_DATA "/formats.txt")) {
        const QString code = cells.value(1);
        const bool text = cells[0].startsWith("t:");
        const QString shown =
            text ? FormatText(cells[0].mid(2), code) : FormatNumber(cells[0].toDouble(), code).text;
        EXPECT_EQ(shown.toStdString(), cells.value(2).toStdString()) << line;
    }
}

TEST(NumberFormat, Colors) {
    EXPECT_EQ(FormatNumber(-1, "0;[Red]0").color, QColor(Qt::red));
    EXPECT_EQ(FormatNumber(1, "[青]0").color, QColor(Qt::blue));
    EXPECT_EQ(FormatNumber(1, "[色10]0").color, QColor(0, 128, 0));
}

TEST(NumberFormat, TellsDatesFromNumbers) {
    EXPECT_TRUE(IsDateFormat("h:mm"));
    for (const char* code : {"General", "@", "#,##0_ ;[Red]\\-#,##0\\ ", "\"day\"0", "0.0E+0"})
        EXPECT_FALSE(IsDateFormat(QString::fromLatin1(code))) << code;
}

TEST(NumberFormat, BrokenCodesShowSomething) {
    for (const char* code : {"\"", "[", "\\", "_", "*", "[$", "0E+", ".", ",,,", "%%%%", "[>]0", "[h",
                             "0.0.0", ";;;;;;", "[Color99]0"}) {
        for (const double value : {0.0, -1234.5, 1e308, 4e-320}) {
            const QString format = QString::fromLatin1(code);
            FormatNumber(value, format);
            FormatText("x", format);
        }
    }
}

}  // namespace
}  // namespace akarix
