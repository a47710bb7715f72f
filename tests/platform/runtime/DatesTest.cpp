#include <gtest/gtest.h>

#include "platform/runtime/Clock.h"
#include "platform/runtime/DatePart.h"
#include "platform/runtime/DateSerial.h"
#include "platform/runtime/Raises.h"

namespace akarix {

namespace {

TEST(Dates, SerialsAndTheirParts) {
    struct Case {
        int year, month, day;
        double serial;
        int weekday;
    };
    const Case cases[] = {
        {1899, 12, 30, 0, 7},       {1899, 12, 31, 1, 1},    {1900, 2, 28, 60, 4},  {1900, 3, 1, 61, 5},
        {2000, 2, 29, 36585, 3},    {2011, 3, 25, 40627, 6}, {1899, 12, 29, -1, 6}, {100, 1, 1, -657434, 6},
        {9999, 12, 31, 2958465, 6}, {2100, 3, 1, 73110, 2},
    };
    for (const Case& c : cases) {
        const Date date = DateSerial(c.year, c.month, c.day);
        EXPECT_EQ(date.Serial(), c.serial);
        EXPECT_EQ(Year(date), c.year);
        EXPECT_EQ(Month(date), c.month);
        EXPECT_EQ(Day(date), c.day);
        EXPECT_EQ(Weekday(date), c.weekday);
    }
}

TEST(Dates, CarriesMonthsAndDays) {
    EXPECT_EQ(DateSerial(2011, 13, 1), DateSerial(2012, 1, 1));
    EXPECT_EQ(DateSerial(2011, 0, 1), DateSerial(2010, 12, 1));
    EXPECT_EQ(DateSerial(2011, -11, 1), DateSerial(2010, 1, 1));
    EXPECT_EQ(DateSerial(2011, 3, 0), DateSerial(2011, 2, 28));
    EXPECT_EQ(DateSerial(2011, 2, 31), DateSerial(2011, 3, 3));
    EXPECT_EQ(DateSerial(29, 1, 1), DateSerial(2029, 1, 1));
    EXPECT_EQ(DateSerial(30, 1, 1), DateSerial(1930, 1, 1));
    EXPECT_EQ(raised([] { return DateSerial(9999, 13, 1); }), 5);
    EXPECT_EQ(raised([] { return DateSerial(100, 1, 0); }), 5);
    EXPECT_EQ(raised([] { return DateSerial(10000, 1, 1); }), 5);
    EXPECT_EQ(raised([] { return Year(Date(3000000)); }), 5);
}

TEST(Dates, TimesRoundToTheSecond) {
    EXPECT_EQ(TimeSerial(12 - 6, -15, 0), TimeSerial(5, 45, 0));
    EXPECT_EQ(TimeSerial(24, 0, 1).Serial(), 1 + 1 / 86400.0);
    for (int second = 0; second < 86400; second += 61) {
        const Date date(40627 + TimeSerial(0, 0, second).Serial());
        EXPECT_EQ((Hour(date) * 60 + Minute(date)) * 60 + Second(date), second);
    }
    EXPECT_EQ(Day(Date(40627.999999)), 26);  // noise below half a second belongs to the next midnight
    EXPECT_EQ(Hour(Date(-1.25)), 6);
    EXPECT_EQ(Day(Date(-1.25)), 29);
}

TEST(Clock, CanBeReplacedAndGivenBack) {
    SetClock(Date(40627.5));
    EXPECT_EQ(Now(), Date(40627.5));
    EXPECT_EQ(Today(), Date(40627));
    SetClock(Date());
    EXPECT_GT(Now().Serial(), 45000);
    EXPECT_EQ(Hour(Today()), 0);
}

}  // namespace

}  // namespace akarix
