#include "values/Dates.h"

#include <gtest/gtest.h>

#include "platform/runtime/Clock.h"
#include "platform/runtime/DateSerial.h"

namespace akarix {
namespace {

class Dates : public testing::Test {
 protected:
    Dates() { SetClock(Date(DateSerial(2011, 3, 25).Serial() + TimeSerial(9, 5, 7).Serial())); }
    ~Dates() override {
        SetClock({});
        gDateMode = 0;
    }
    static QString plain(Date date) {
        gDateMode = 0;
        return DateText(date);
    }
};

TEST_F(Dates, ShowsWesternAndEraYears) {
    const Date day = DateSerial(2011, 3, 5);
    EXPECT_EQ(DateText(day), u"2011/03/05"_qs);
    EXPECT_EQ(DateText({}), QString());
    gDateMode = 1;
    EXPECT_EQ(DateText(day), u"23/03/05"_qs);
    EXPECT_EQ(DisplayYear(DateSerial(2026, 1, 1)), 38) << "one era, without an end";
    EXPECT_EQ(DateText(DateSerial(1989, 1, 8)), u"1/01/08"_qs);
}

TEST_F(Dates, ParsesWhatIsTyped) {
    struct Case {
        int mode;
        QString typed;
        QString date;        // western; empty for no date
        QString strictDate;  // of the strict reader
    };
    const Case cases[] = {
        {0, u"3/15"_qs, u"2011/03/15"_qs, u""_qs},
        {0, u" 3.15 "_qs, u"2011/03/15"_qs, u""_qs},
        {0, u"2011.3.15"_qs, u"2011/03/15"_qs, u""_qs},
        {0, u"2011/3/15"_qs, u"2011/03/15"_qs, u"2011/03/15"_qs},
        {0, u"2012/2/29"_qs, u"2012/02/29"_qs, u"2012/02/29"_qs},
        {0, u"2/30"_qs, u""_qs, u""_qs},
        {0, u"2011/13/1"_qs, u""_qs, u""_qs},
        {0, u"20110325"_qs, u""_qs, u""_qs},
        {0, u""_qs, u""_qs, u""_qs},
        {0, u"/3/15"_qs, u""_qs, u""_qs},
        {0, u"2011/3/"_qs, u""_qs, u""_qs},
        {0, u"a/b"_qs, u""_qs, u""_qs},
        {1, u"3/15"_qs, u"2011/03/15"_qs, u""_qs},
        {1, u"23/3/15"_qs, u"2011/03/15"_qs, u"2011/03/15"_qs},
        {1, u"1/1/8"_qs, u"1989/01/08"_qs, u"1989/01/08"_qs},
        {1, u"23/2/30"_qs, u""_qs, u""_qs},
    };
    for (const Case& c : cases) {
        gDateMode = static_cast<std::int16_t>(c.mode);
        const Date date = ParseDate(c.typed);
        const Date strict = ParseStrictDate(c.typed);
        EXPECT_EQ(plain(date), c.date) << c.typed.toStdString() << " in mode " << c.mode;
        EXPECT_EQ(plain(strict), c.strictDate) << c.typed.toStdString() << " in mode " << c.mode;
    }
}

TEST_F(Dates, TellsDatesFromOtherValues) {
    EXPECT_TRUE(IsDateSet(DateSerial(2011, 3, 5)));
    EXPECT_FALSE(IsDateSet(Date()));
    EXPECT_FALSE(IsDateSet(Variant::Null()));
    EXPECT_FALSE(IsDateSet(40000));
}

TEST_F(Dates, NamesAndStamps) {
    EXPECT_EQ(YobiName(DateSerial(2011, 3, 27)), u"日曜"_qs);
    EXPECT_EQ(YobiName(DateSerial(2011, 4, 2)), u"土曜"_qs);
    EXPECT_EQ(StampNow(), u"20110325090507"_qs);
}

}  // namespace
}  // namespace akarix
