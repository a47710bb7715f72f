#include <gtest/gtest.h>

#include "platform/runtime/RuntimeError.h"
#include "support/CaseFile.h"
#include "values/CellAddress.h"
#include "values/NumStr.h"
#include "values/NumVal.h"

namespace akarix {
namespace {

const char* const kTyped = AKARIX_TEST_DATA "/typed.txt";

TEST(NumVal, FiltersBeforeReading) {
    for (const auto& [cells, line] : ReadTable(kTyped, "numbers")) {
        EXPECT_EQ(KeepNumeric(cells[0]), cells[1]) << line;
        EXPECT_EQ(KeepDigits(cells[0]), cells[2]) << line;
        EXPECT_EQ(NumVal(cells[0]), cells[3].toDouble()) << line;
    }
}

/// The number a conversion raises, 0 when it gives a value.
template <class Convert>
int ErrorOf(Convert convert) {
    try {
        convert();
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

TEST(NumVal, ConversionsRaiseOnTextAsItStands) {
    for (const auto& [cells, line] : ReadTable(kTyped, "errors")) {
        EXPECT_EQ(ErrorOf([&] { ToInteger(cells[0]); }), cells[1].toInt()) << line;
        EXPECT_EQ(ErrorOf([&] { ToLong(cells[0]); }), cells[2].toInt()) << line;
        EXPECT_EQ(ErrorOf([&] { ToCurrency(cells[0]); }), cells[3].toInt()) << line;
    }
    EXPECT_EQ(ToInteger("1,200"), 1200);
    EXPECT_EQ(ToLong("70000"), 70000);
    EXPECT_EQ(ToCurrency("¥1,234.56円"), Currency::FromScaled(12345600));
}

TEST(NumStr, PlainTextForStatements) {
    EXPECT_EQ(NumStr(5), "5");
    EXPECT_EQ(NumStr(-5), "-5");
    EXPECT_EQ(NumStr(0.5), ".5");
    EXPECT_EQ(NumStr(Currency::FromScaled(12345600)), "1234.56");
}

TEST(NumStr, PadsAndCuts) {
    EXPECT_EQ(PadFormat(5, "000"), "005");
    EXPECT_EQ(PadFormat(1234, "00"), "34");
    EXPECT_EQ(PadFormat(1234, "###,###"), "  1,234");
    EXPECT_EQ(PadText("ab", 4), "ab  ");
    EXPECT_EQ(PadText("abcdef", 4), "abcd");
}

TEST(CellAddress, ColumnsRunPastZ) {
    struct Case {
        const char* column;
        int row, columnOffset, rowOffset;
        const char* address;
    };
    const Case cases[] = {{"A", 1, 0, 0, "A1"},   {"Z", 5, 1, 2, "AA7"},  {"AB", 1, 0, 0, "AB1"},
                          {"AZ", 1, 1, 0, "BA1"}, {"AA", 4, -1, 0, "Z4"}, {"Y", 1, 1, 0, "Z1"}};
    for (const Case& c : cases) {
        EXPECT_EQ(CellAddress(QString::fromLatin1(c.column), c.row, c.columnOffset, c.rowOffset),
                  QString::fromLatin1(c.address));
    }
}

}  // namespace
}  // namespace akarix
