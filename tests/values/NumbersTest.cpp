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
        {u""_qs, u"0"_qs, u"0"_qs, 0},
        {u"."_qs, u"0"_qs, u"0"_qs, 0},
        {u"-"_qs, u"-"_qs, u"0"_qs, 0},
        {u"¥1,200"_qs, u"1200"_qs, u"1200"_qs, 1200},
        {u"1-2"_qs, u"1-2"_qs, u"12"_qs, 1},
        {u" -3.5円"_qs, u"-3.5"_qs, u"35"_qs, -3.5},
        {u"1.2.3"_qs, u"1.2.3"_qs, u"123"_qs, 1.2},
        {u"12a34"_qs, u"1234"_qs, u"1234"_qs, 1234},
        {u"１２"_qs, u"0"_qs, u"0"_qs, 0},  // full-width digits are no digits here
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
        {u""_qs, 0, 0, 0},      {u"abc"_qs, 0, 0, 0},        {u"32767"_qs, 0, 0, 0},
        {u"70000"_qs, 6, 0, 0}, {u"12a"_qs, 13, 13, 0},      {u"1-2"_qs, 13, 13, 13},
        {u"1,200"_qs, 0, 0, 0}, {u"9999999999"_qs, 6, 6, 0}, {u"0円"_qs, 0, 0, 0},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(errorOf([&] { ToInteger(c.typed); }), c.integerError) << c.typed.toStdString();
        EXPECT_EQ(errorOf([&] { ToLong(c.typed); }), c.longError) << c.typed.toStdString();
        EXPECT_EQ(errorOf([&] { ToCurrency(c.typed); }), c.currencyError) << c.typed.toStdString();
    }
    EXPECT_EQ(ToInteger(u"1,200"_qs), 1200);
    EXPECT_EQ(ToLong(u"70000"_qs), 70000);
    EXPECT_EQ(ToCurrency(u"¥1,234.56円"_qs), Currency::FromScaled(12345600));
}

TEST(NumStr, PlainTextForStatements) {
    EXPECT_EQ(NumStr(5), u"5"_qs);
    EXPECT_EQ(NumStr(-5), u"-5"_qs);
    EXPECT_EQ(NumStr(0.5), u".5"_qs);
    EXPECT_EQ(NumStr(Currency::FromScaled(12345600)), u"1234.56"_qs);
}

TEST(NumStr, PadsAndCuts) {
    EXPECT_EQ(PadFormat(5, u"000"_qs), u"005"_qs);
    EXPECT_EQ(PadFormat(1234, u"00"_qs), u"34"_qs);
    EXPECT_EQ(PadFormat(1234, u"###,###"_qs), u"  1,234"_qs);
    EXPECT_EQ(PadText(u"ab"_qs, 4), u"ab  "_qs);
    EXPECT_EQ(PadText(u"abcdef"_qs, 4), u"abcd"_qs);
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
