#include "values/Dates.h"

#include <gtest/gtest.h>

#include "platform/runtime/Calendar.h"
#include "platform/runtime/Conversion.h"
#include "support/CaseFile.h"

namespace akarix {
namespace {

class Dates : public testing::Test {
 protected:
    Dates() { SetClock(CDate("2011/3/25 9:05:07")); }
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
    for (const auto& [cells, line] : ReadTable(AKARIX_TEST_DATA "/typed.txt", "dates")) {
        gDateMode = cells[0].toShort();
        EXPECT_EQ(plain(ParseDate(cells[1])), cells.value(2)) << line;
        gDateMode = cells[0].toShort();
        EXPECT_EQ(plain(ParseStrictDate(cells[1])), cells.value(3)) << line;
    }
}

TEST_F(Dates, TellsDatesFromOtherValues) {
    EXPECT_TRUE(IsDateSet(DateSerial(2011, 3, 5)));
    EXPECT_FALSE(IsDateSet(Date()));
    EXPECT_FALSE(IsDateSet(Variant::Null()));
    EXPECT_FALSE(IsDateSet(40000));
}

TEST_F(Dates, NamesWeekdays) {
    EXPECT_EQ(YobiName(DateSerial(2011, 3, 27)), "日曜");
}

}  // namespace
}  // namespace akarix
