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
    EXPECT_EQ(DateText(day), "2011/03/05");
    EXPECT_EQ(DateText({}), QString());
    gDateMode = 1;
    EXPECT_EQ(DateText(day), "23/03/05");
    EXPECT_EQ(DisplayYear(DateSerial(2026, 1, 1)), 38) << "one era, without an end";
    EXPECT_EQ(DateText(DateSerial(1989, 1, 8)), "1/01/08");
}

TEST_F(Dates, ParsesWhatIsTyped) {
    struct Case {
        int mode;
        QString typed;
        QString date;        // western; empty for no date
        QString strictDate;  // of the strict reader
    };
    const Case cases[] = {
        {0, "3/15", "2011/03/15", ""},
        {0, " 3.15 ", "2011/03/15", ""},
        {0, "2011.3.15", "2011/03/15", ""},
        {0, "2011/3/15", "2011/03/15", "2011/03/15"},
        {0, "2012/2/29", "2012/02/29", "2012/02/29"},
        {0, "2/30", "", ""},
        {0, "2011/13/1", "", ""},
        {0, "20110325", "", ""},
        {0, "", "", ""},
        {0, "/3/15", "", ""},
        {0, "2011/3/", "", ""},
        {0, "a/b", "", ""},
        {1, "3/15", "2011/03/15", ""},
        {1, "23/3/15", "2011/03/15", "2011/03/15"},
        {1, "1/1/8", "1989/01/08", "1989/01/08"},
        {1, "23/2/30", "", ""},
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
    EXPECT_EQ(YobiName(DateSerial(2011, 3, 27)), "日曜");
    EXPECT_EQ(YobiName(DateSerial(2011, 4, 2)), "土曜");
    EXPECT_EQ(StampNow(), "20110325090507");
}

}  // namespace
}  // namespace akarix
