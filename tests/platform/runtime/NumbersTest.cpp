#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <limits>

#include "platform/runtime/Conversion.h"
#include "platform/runtime/Raises.h"
#include "support/PrintQString.h"

namespace akarix {

namespace {

Currency Money(const char* text) {
    return Currency::FromText(QString::fromUtf8(text));
}

TEST(Currency, RoundsProductsAndQuotientsHalfToEven) {
    const std::array<const char*, 4> cases[] = {
        {"1.0001", "0.5", "0.5", "2.0002"}, {"-1.0003", "0.5", "-0.5002", "-2.0006"},
        {"0.0001", "2", "0.0002", "0"},     {"0.0003", "-2", "-0.0006", "-0.0002"},
        {"20", "-3", "-60", "-6.6667"},     {"303700049.9", "3037000", "922337051546300", "100"},
    };
    for (const auto& [a, b, product, quotient] : cases) {
        EXPECT_EQ((Money(a) * Money(b)).ToText(), product) << a << " * " << b;
        EXPECT_EQ((Money(a) / Money(b)).ToText(), quotient) << a << " / " << b;
    }
}

TEST(Currency, LeavingTheRangeOverflows) {
    const Currency top = Currency::FromScaled(std::numeric_limits<std::int64_t>::max());
    const Currency bottom = Currency::FromScaled(std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(bottom.ToText(), "-922337203685477.5808");
    EXPECT_EQ(Money("922337203685477.5807"), top);
    EXPECT_EQ(Raised([&] { return top + Currency::FromScaled(1); }), 6);
    EXPECT_EQ(Raised([&] { return bottom - Currency::FromScaled(1); }), 6);
    EXPECT_EQ(Raised([&] { return -bottom; }), 6);
    EXPECT_EQ(Raised([&] { return top * Currency(2); }), 6);
    EXPECT_EQ(Raised([&] { return top / Money("0.5"); }), 6);
    EXPECT_EQ(Raised([&] { return top / Currency(0); }), 11);
    EXPECT_EQ(Raised([] { return Currency(std::int64_t{922337203685478}); }), 6);
    EXPECT_EQ(Raised([] { return Money("922337203685477.58075"); }), 6);
    EXPECT_EQ(Raised([] { return Money("1,000"); }), 13);
}

TEST(Conversion, ReadsNumbersAsAClerkWritesThem) {
    const std::pair<const char*, double> cases[] = {
        {"  -12.5 ", -12.5}, {"12-", -12},  {"(1,234.5)", -1234.5}, {"－１，２３４．５", -1234.5},
        {"(\\5)", -5},       {"1E3", 1000}, {"1d-2", 0.01},         {"1,2", 12},
    };
    for (const auto& [text, value] : cases) {
        EXPECT_EQ(CDbl(text), value) << text;
        EXPECT_TRUE(IsNumeric(text)) << text;
    }
    for (const char* text : {"", "12a", "1.2.3", "+-5", "-5-", "(-5)", "(5", "5)", "1 2", ".", "-", ",1",
                             "1.2,3", "50%", "&H1F", "1E", "\\\\5"}) {
        EXPECT_EQ(Raised([&] { return CDbl(text); }), 13) << text;
        EXPECT_FALSE(IsNumeric(text)) << text;
    }
    EXPECT_EQ(Raised([] { return CDbl("1E400"); }), 6);
    EXPECT_FALSE(IsNumeric("1E400"));
    EXPECT_TRUE(IsNumeric(Variant()));
    EXPECT_TRUE(IsNumeric(true));
    EXPECT_FALSE(IsNumeric(NullValue{}));
    EXPECT_FALSE(IsNumeric(Date(40000)));
}

TEST(Conversion, WholeNumbersRoundHalfToEvenBeforeTheRangeIsTested) {
    const std::pair<Variant, int> cases[] = {
        {0.5, 0},   {1.5, 2},       {-0.5, 0},          {2.51, 3},          {Money("2.5"), 2}, {"2.5", 2},
        {true, -1}, {Variant(), 0}, {-32768.5, -32768}, {"32767.4", 32767}, {Date(2.5), 2}};
    for (const auto& [value, whole] : cases)
        EXPECT_EQ(CInt(value), whole);
    EXPECT_EQ(Raised([] { return CInt(32767.5); }), 6);
    EXPECT_EQ(Raised([] { return CInt(NullValue{}); }), 94);
    EXPECT_EQ(CLng(2147483647.4), 2147483647);
    EXPECT_EQ(CLng(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(Raised([] { return CLng(2147483647.5); }), 6);
    EXPECT_EQ(Raised([] { return CLng("99999999999999999999"); }), 6);
}

TEST(Conversion, CurrencyGoesByDecimalDigits) {
    EXPECT_EQ(CCur("922337203685477.5807"), Money("922337203685477.5807"));
    EXPECT_EQ(CCur("0.00005"), Money("0"));
    EXPECT_EQ(CCur("0.00015"), Money("0.0002"));
    EXPECT_EQ(CCur(1.23455), Money("1.2346"));
    EXPECT_EQ(CCur(922337203685477.5), Money("922337203685477.5"));
    EXPECT_EQ(Raised([] { return CCur(1e15); }), 6);
    EXPECT_EQ(Raised([] { return CCur(""); }), 13);
}

TEST(Val, ReadsTheNumberInFront) {
    const std::pair<const char*, double> cases[] = {
        {"", 0},
        {"1 615 198th Street", 1615198},
        {"  -12.5kg", -12.5},
        {"1,200", 1},
        {"--5", 0},
        {"-.5", -0.5},
        {"1.2.3", 1.2},
        {"1d-2x", 0.01},
        {"1E", 1},
        {"&H1F", 0},
        {"１２", 0},
        {"¥12", 0},
        {"\t1\n2", 12},
    };
    for (const auto& [text, value] : cases)
        EXPECT_EQ(Val(QString::fromUtf8(text)), value) << text;
}

TEST(Text, OfNumbers) {
    const std::tuple<Variant, const char*, const char*> cases[] = {
        {-0.5, "-.5", "-0.5"},
        {0.1 + 0.2, " .3", "0.3"},
        {1.0 / 3, " .333333333333333", "0.333333333333333"},
        {1e-16, " 1E-16", "1E-16"},
        {999999999999999.0, " 999999999999999", "999999999999999"},
        {1e15, " 1E+15", "1E+15"},
        {16777216.0f, " 1.677722E+07", "1.677722E+07"},
        {Money("-0.0005"), "-.0005", "-0.0005"},
        {Money("922337203685477.5807"), " 922337203685477.5807", "922337203685477.5807"},
        {Variant(), " 0", ""},
        {" 12.50 ", " 12.5", " 12.50 "},
        {true, "True", "True"},
        {Date(40627.5), "2011/03/25 12:00:00", "2011/03/25 12:00:00"},
    };
    for (const auto& [value, spaced, plain] : cases) {
        EXPECT_EQ(Str(value), spaced);
        EXPECT_EQ(CStr(value), plain);
    }
    EXPECT_EQ(Raised([] { return Str("abc"); }), 13);
    EXPECT_EQ(Raised([] { return Str(NullValue{}); }), 94);
    EXPECT_EQ(Raised([] { return CStr(NullValue{}); }), 94);
}

TEST(WholePart, IntFloorsAndFixCuts) {
    EXPECT_EQ(Int(Money("-8.4")), Currency(-9));
    EXPECT_EQ(Fix(Money("-8.4")), Currency(-8));
    EXPECT_EQ(Raised([] { return Int(Currency::FromScaled(std::numeric_limits<std::int64_t>::min())); }), 6);
    EXPECT_EQ(Int(-8.4), -9.0);
    EXPECT_EQ(Fix(-8.4), -8.0);
    EXPECT_EQ(Int(Variant(Money("2.5"))), Variant(Currency(2)));
    EXPECT_EQ(Int(Variant("2.5")), Variant(2.0));
    EXPECT_EQ(Fix(Variant(Date(2.5))), Variant(Date(2)));
    EXPECT_EQ(Int(Variant(NullValue{})), Variant(NullValue{}));
    EXPECT_EQ(Int(Variant(true)).Type(), VarType::Integer);
}

}  // namespace

}  // namespace akarix
