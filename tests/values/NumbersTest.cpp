#include <gtest/gtest.h>

#include "platform/runtime/Raises.h"
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

TEST(NumVal, ConversionsRaiseOnTextAsItStands) {
    for (const auto& [cells, line] : ReadTable(kTyped, "errors")) {
        const QString& text = cells[0];
        EXPECT_EQ(Raised([&] { return ToInteger(text); }), cells[1].toInt()) << line;
        EXPECT_EQ(Raised([&] { return ToLong(text); }), cells[2].toInt()) << line;
        EXPECT_EQ(Raised([&] { return ToCurrency(text); }), cells[3].toInt()) << line;
    }
    EXPECT_EQ(ToInteger("1,200"), 1200);
    EXPECT_EQ(ToLong("70000"), 70000);
    EXPECT_EQ(ToCurrency("¥1,234.56円"), Currency::FromScaled(12345600));
}

TEST(NumStr, PlainTextForStatements) {
    EXPECT_EQ(NumStr(5), "5");
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
    EXPECT_EQ(CellAddress("Y", 1, 1, 0), "Z1");
    EXPECT_EQ(CellAddress("Z", 5, 1, 2), "AA7");
    EXPECT_EQ(CellAddress("AZ", 1, 1, 0), "BA1");
    EXPECT_EQ(CellAddress("AA", 4, -1, 0), "Z4");
}

}  // namespace
}  // namespace akarix
