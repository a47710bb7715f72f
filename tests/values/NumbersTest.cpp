#include <gtest/gtest.h>

#include "platform/runtime/RuntimeError.h"
#include "values/CellAddress.h"
#include "values/NumStr.h"
#include "values/NumVal.h"

namespace akarix {
namespace {

struct Filter {
    QString typed;
    QString numeric;
    QString digits;
    double value;
};

TEST(NumVal, FiltersBeforeReading) {
    const Filter cases[] = {
        {"", "0", "0", 0},
        {".", "0", "0", 0},
        {"-", "-", "0", 0},
        {"¥1,200", "1200", "1200", 1200},
        {"1-2", "1-2", "12", 1},
        {" -3.5円", "-3.5", "35", -3.5},
        {"1.2.3", "1.2.3", "123", 1.2},
        {"12a34", "1234", "1234", 1234},
        {"１２", "0", "0", 0},  // full-width digits are no digits here
    };
    for (const Filter& c : cases) {
        EXPECT_EQ(KeepNumeric(c.typed), c.numeric) << c.typed.toStdString();
        EXPECT_EQ(KeepDigits(c.typed), c.digits) << c.typed.toStdString();
        EXPECT_EQ(NumVal(c.typed), c.value) << c.typed.toStdString();
    }
}

/// The number a conversion raises, 0 when it gives a value.
template <class Convert>
int errorOf(Convert convert) {
    try {
        convert();
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

TEST(NumVal, ConversionsRaiseOnTextAsItStands) {
    struct Case {
        QString typed;
        int integerError, longError, currencyError;
    };
    const Case cases[] = {
        {"", 0, 0, 0},      {"abc", 0, 0, 0},        {"32767", 0, 0, 0},
        {"70000", 6, 0, 0}, {"12a", 13, 13, 0},      {"1-2", 13, 13, 13},
        {"1,200", 0, 0, 0}, {"9999999999", 6, 6, 0}, {"0円", 0, 0, 0},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(errorOf([&] { ToInteger(c.typed); }), c.integerError) << c.typed.toStdString();
        EXPECT_EQ(errorOf([&] { ToLong(c.typed); }), c.longError) << c.typed.toStdString();
        EXPECT_EQ(errorOf([&] { ToCurrency(c.typed); }), c.currencyError) << c.typed.toStdString();
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
