#include <gtest/gtest.h>

#include "platform/runtime/Calendar.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Raises.h"
#include "support/PrintQString.h"

namespace akarix {

namespace {

TEST(Dates, SerialsAndTheirParts) {
    const std::tuple<int, int, int, double, int> cases[] = {
        {1899, 12, 30, 0, 7},    {1899, 12, 29, -1, 6},   {1900, 2, 28, 60, 4},       {1900, 3, 1, 61, 5},
        {2000, 2, 29, 36585, 3}, {100, 1, 1, -657434, 6}, {9999, 12, 31, 2958465, 6},
    };
    for (const auto& [year, month, day, serial, weekday] : cases) {
        const Date date = DateSerial(year, month, day);
        EXPECT_EQ(date.Serial(), serial);
        EXPECT_EQ(std::tuple(Year(date), Month(date), Day(date)), std::tuple(year, month, day));
        EXPECT_EQ(Weekday(date), weekday);
    }
}

TEST(Dates, CarriesMonthsAndDays) {
    EXPECT_EQ(DateSerial(2011, 13, 1), DateSerial(2012, 1, 1));
    EXPECT_EQ(DateSerial(2011, -11, 1), DateSerial(2010, 1, 1));
    EXPECT_EQ(DateSerial(2011, 3, 0), DateSerial(2011, 2, 28));
    EXPECT_EQ(DateSerial(2011, 2, 31), DateSerial(2011, 3, 3));
    EXPECT_EQ(DateSerial(29, 1, 1), DateSerial(2029, 1, 1));
    EXPECT_EQ(DateSerial(30, 1, 1), DateSerial(1930, 1, 1));
    EXPECT_EQ(Raised([] { return DateSerial(9999, 13, 1); }), 5);
    EXPECT_EQ(Raised([] { return DateSerial(100, 1, 0); }), 5);
    EXPECT_EQ(Raised([] { return Year(Date(3000000)); }), 5);
}

TEST(Dates, TimesRoundToTheSecond) {
    for (int second = 0; second < 86400; second += 61) {
        const Moment moment = Moment::of(Date(40627 + second / 86400.0));
        EXPECT_EQ(moment.day, 40627);
        EXPECT_EQ(moment.second, second);
    }
    EXPECT_EQ(Day(Date(40627.999999)), 26);  // noise below half a second belongs to the next midnight
    EXPECT_EQ(Moment::of(Date(-1.25)).second, 6 * 3600);
    EXPECT_EQ(Day(Date(-1.25)), 29);
}

TEST(DateText, ReadsWhatAClerkMayWrite) {
    SetClock(DateSerial(2026, 11, 22));
    const std::pair<const char*, const char*> cases[] = {
        {"29/1/1", "2029/01/01"},
        {"30/1/1", "1930/01/01"},
        {"3/25", "2026/03/25"},
        {"2011/3", "2011/03/01"},
        {"25/3/2011", "2011/03/25"},
        {"2011 3 25", "2011/03/25"},
        {"２０１１／３／２５", "2011/03/25"},
        {"3月25日", "2026/03/25"},
        {"平成23年3月25日", "2011/03/25"},
        {"令和元年5月1日", "2019/05/01"},
        {"H23/3/25", "2011/03/25"},
        {"s64.1.7", "1989/01/07"},
        {"25-Mar-2011", "2011/03/25"},
        {"1.5", "1:05:00"},
        {"午後1:23", "13:23:00"},
        {"12 am", "0:00:00"},
        {"13時5分9秒", "13:05:09"},
        {"12:34 2011/3/25", "2011/03/25 12:34:00"},
        {"平成23年3月25日 午後1時", "2011/03/25 13:00:00"},
        {"2011年3月25日13時5分", "2011/03/25 13:05:00"},
    };
    for (const auto& [text, date] : cases) {
        EXPECT_TRUE(IsDate(text)) << text;
        EXPECT_EQ(CStr(CDate(text)), date) << text;
    }
    for (const char* text : {"", "2011/2/29", "2011/13/1", "2011.3.25", "20110325", "24:00", "12:60", "3",
                             "3月", "平成0年1月1日", "13:00 am", "2011/3/25 x", "2011/3/25 25:00", "Foo 3",
                             "/3/25", "2011/3/", "10000/1/1"})
        EXPECT_FALSE(IsDate(text)) << text;
    SetClock(Date());
}

TEST(DateText, NumbersAreSerialsButNoDates) {
    EXPECT_FALSE(IsDate(40627));
    EXPECT_TRUE(IsDate(Date()));
    EXPECT_FALSE(IsDate(NullValue{}));
    EXPECT_EQ(CDate(40627), Date(40627));
    EXPECT_EQ(CDate("40627.5"), Date(40627.5));
    EXPECT_EQ(CDate(Variant()), Date());
    EXPECT_EQ(Raised([] { return CDate("20110325"); }), 13);
    EXPECT_EQ(Raised([] { return CDate("abc"); }), 13);
    EXPECT_EQ(Raised([] { return CDate(1e7); }), 6);
    EXPECT_EQ(Raised([] { return CDate(NullValue{}); }), 94);
}

}  // namespace

}  // namespace akarix
