#include <gtest/gtest.h>

#include "platform/sheet/NumberFormat.h"

namespace akarix {
namespace {

struct Shown {
    double value;
    const char* code;
    const char* text;
};

void expectShown(const std::vector<Shown>& table) {
    for (const Shown& row : table) {
        EXPECT_EQ(FormatNumber(row.value, QString::fromUtf8(row.code)).text.toStdString(), row.text)
            << row.value << " through " << row.code;
    }
}

TEST(NumberFormat, General) {
    expectShown({{0, "General", "0"},
                 {-5, "", "-5"},
                 {1234.5, "General", "1234.5"},
                 {12345678901, "General", "12345678901"},
                 {123456789012, "General", "1.23457E+11"},
                 {99999999999.9, "General", "1E+11"},
                 {1234.56789012, "General", "1234.56789"},
                 {0.1 + 0.2, "General", "0.3"},
                 {0.00012345678, "General", "0.000123457"},
                 {0.00001, "General", "0.00001"},
                 {0.000012345678, "General", "1.23457E-05"},
                 {1e300, "General", "1E+300"},
                 {-12, "G/標準\"円\"", "-12円"},
                 {7, "@", "7"}});
}

TEST(NumberFormat, Digits) {
    expectShown({{5, "00000", "00005"},
                 {0, "#", ""},
                 {0, "#,##0", "0"},
                 {1234567, "#,##0", "1,234,567"},
                 {12, "0,000", "0,012"},
                 {1234567, "000-0000", "123-4567"},
                 {1.005, "0.00", "1.01"},
                 {2.5, "0", "3"},
                 {999.96, "#,##0.0", "1,000.0"},
                 {1.5, "0.0##", "1.5"},
                 {1, "0.#", "1."},
                 {0.25, ".00", ".25"},
                 {1.5, "??0.0?", "  1.5 "},
                 {-0.4, "0", "0"},
                 {-1234, "\"¥\"#,##0", "-¥1,234"},
                 {1234, "\\\\#,##0", "¥1,234"},
                 {1234, "[$¥-411]#,##0", "¥1,234"},
                 {0.126, "0.0%", "12.6%"},
                 {1234567, "#,##0,", "1,235"},
                 {1234567, "0.0,,\"百万\"", "1.2百万"},
                 {1e15, "0", "1000000000000000"},
                 {5, "0_)", "5 "},
                 {5, "*-0", "5"},
                 {5, "\"件数 \"0\\件", "件数 5件"},
                 {12345, "0.00E+00", "1.23E+04"},
                 {0.00099999, "0.0E-0", "1.0E-3"},
                 {12345678, "##0.0E+0", "12.3E+6"},
                 {1.5, "# ?/?", "1 1/2"},
                 {0.3333333, "# ?\?/?\?", "  1/3 "},
                 {3, "# ?/?", "3    "},
                 {1.99, "# ?/4", "2    "},
                 {2.625, "?/8", "21/8"}});
}

TEST(NumberFormat, Sections) {
    expectShown({{-5, "0;(0)", "(5)"},
                 {0, "0;(0)", "0"},
                 {0, "0;-0;\"なし\"", "なし"},
                 {-5, "0;;", ""},
                 {-1234, "#,##0;[Red]▲ #,##0", "▲ 1,234"},
                 {150, "[>100]\"大\"0;[<0]\"負\"0;0", "大150"},
                 {-7, "[>100]\"大\"0;[<0]\"負\"0;0", "負7"},
                 {50, "[>100]\"大\"0;[<0]\"負\"0;0", "50"},
                 {-7, "[<100]0;0.0", "-7"},
                 {-7, "_ * #,##0_ ;_ * \\-#,##0_ ;_ * \"-\"_ ;_ @_ ", " -7 "},
                 {5, "0;@", "5"},
                 {5, "[Red]", "5"},
                 {5, "[=1]\"男\";[=2]\"女\"", "########"}});
}

TEST(NumberFormat, Colors) {
    EXPECT_EQ(FormatNumber(-1, QStringLiteral("0;[Red]0")).color, QColor(Qt::red));
    EXPECT_FALSE(FormatNumber(1, QStringLiteral("0;[Red]0")).color.isValid());
    EXPECT_EQ(FormatNumber(1, QStringLiteral("[青]0")).color, QColor(Qt::blue));
    EXPECT_EQ(FormatNumber(1, QStringLiteral("[色10]0")).color, QColor(0, 128, 0));
    EXPECT_EQ(FormatNumber(1, QStringLiteral("[Color 3]0")).color, QColor(Qt::red));
}

TEST(NumberFormat, DatesAndTimes) {
    constexpr double noon = 45046.5;  // 30 April 2023, a Sunday
    expectShown({{noon, "yyyy/mm/dd", "2023/04/30"},
                 {noon, "yy/m/d h:mm", "23/4/30 12:00"},
                 {noon, "[$-411]ggge\"年\"m\"月\"d\"日\"", "令和5年4月30日"},
                 {noon, "[$-1030411]ggge\\年m\\月d\\日", "令和5年4月30日"},
                 {noon, "ge.m.d", "R5.4.30"},
                 {noon, "gg ee", "令 05"},
                 {noon, "aaa aaaa ddd dddd", "日 日曜日 Sun Sunday"},
                 {noon, "d-mmm-yy mmmm mmmmm", "30-Apr-23 April A"},
                 {43585, "ggge.m.d", "平成31.4.30"},
                 {43586, "ggge.m.d", "令和1.5.1"},
                 {43586, "[$-ja-JP-x-gannen]ggge\"年\"", "令和元年"},
                 {32515, "ge", "S64"},
                 {32516, "ge", "H1"},
                 {1, "yyyy/m/d ge", "1900/1/1 M33"},
                 {60, "yyyy/m/d", "1900/2/29"},
                 {61, "yyyy/m/d", "1900/3/1"},
                 {0.75, "h:mm AM/PM", "6:00 PM"},
                 {0.75, "[$-411]AM/PMh\"時\"", "午後6時"},
                 {0, "h A/P", "12 A"},
                 {1.5, "[h]:mm:ss", "36:00:00"},
                 {1.5, "[mm]", "2160"},
                 {0.0006941, "mm:ss", "01:00"},
                 {45046.999999, "yyyy/m/d h:mm:ss", "2023/5/1 0:00:00"},
                 {0.00001157, "ss.00", "01.00"},
                 {noon, "mm/dd", "04/30"},
                 {-1, "yyyy/m/d", "########"},
                 {1e10, "yyyy/m/d", "########"}});
    EXPECT_TRUE(IsDateFormat(QStringLiteral("[h]:mm")));
    for (const char* code : {"General", "@", "#,##0_ ;[Red]\\-#,##0\\ ", "\"day\"0", "0.0E+0"}) {
        EXPECT_FALSE(IsDateFormat(QString::fromLatin1(code))) << code;
    }
}

TEST(NumberFormat, Texts) {
    struct {
        const char *text, *code, *shown;
    } const table[] = {{"山田", "General", "山田"},
                       {"山田", "@\" 様\"", "山田 様"},
                       {"山田", "0;-0;0;\"<\"@\">\"", "<山田>"},
                       {"山田", "#,##0", "山田"},
                       {"山田", ";;;", ""},
                       {"山田", "0;@\"!\"", "山田!"}};
    for (const auto& row : table) {
        EXPECT_EQ(FormatText(QString::fromUtf8(row.text), QString::fromUtf8(row.code)).toStdString(),
                  row.shown)
            << row.code;
    }
}

TEST(NumberFormat, BrokenCodesShowSomething) {
    for (const char* code :
         {"\"", "[", "\\",  "_",    "*",    "[$", "0/",    "/0",     "?/",         "E+",    "0E+",
          ".",  ",", ",,,", "%%%%", "[>]0", "[h", "0.0.0", ";;;;;;", "[Color99]0", "# ?/0", "#?/99999"}) {
        for (const double value : {0.0, -1234.5, 1e308, 4e-320}) {
            const QString format = QString::fromLatin1(code);
            FormatNumber(value, format);
            FormatText(QStringLiteral("x"), format);
        }
    }
}

}  // namespace
}  // namespace akarix
