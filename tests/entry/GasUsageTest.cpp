#include "entry/GasUsage.h"

#include <gtest/gtest.h>

namespace akarix {
namespace {

TEST(GasUsage, FromReadings) {
    struct Case {
        const char* what;
        const char16_t* zenkai;
        const char16_t* koukan;
        const char16_t* koukanGo;
        const char16_t* konkai;
        const char16_t* usage;
    };
    const Case cases[] = {
        {"plain month", u"900.5", u"0", u"0", u"912.8", u"12.3"},
        {"exchanged meter", u"900", u"950", u"0", u"12", u"62"},
        {"new meter that had run", u"900", u"950.5", u"3.2", u"12", u"59.3"},
        {"without an old reading no exchange", u"900", u"0", u"100", u"912", u"12"},
        {"not read", u"1234.5", u"0", u"0", u"0", u"-1234.5"},
        {"meter past its end", u"9999.9", u"0", u"0", u"0.5", u"-9999.4"},
    };
    const auto amount = [](const char16_t* text) { return Currency::FromText(QString::fromUtf16(text)); };
    for (const Case& c : cases) {
        EXPECT_EQ(CalcGasUsage(amount(c.zenkai), amount(c.koukan), amount(c.koukanGo), amount(c.konkai)),
                  amount(c.usage))
            << c.what;
    }
}

}  // namespace
}  // namespace akarix
