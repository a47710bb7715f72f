#include "platform/runtime/Conversion.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/Raises.h"
#include "support/CaseFile.h"

namespace akarix {

namespace {

/// "12.5" is a Double; "c:", "d:" and "t:" stand before a Currency, a date and a text.
Variant ValueOf(const QString& text) {
    if (text == u"null"_s) return NullValue{};
    if (text == u"empty"_s) return {};
    if (text == u"true"_s) return true;
    if (text.startsWith(u"c:"_s)) return Currency::FromText(text.mid(2));
    if (text.startsWith(u"d:"_s)) return CDate(text.mid(2));
    if (text.startsWith(u"t:"_s)) return text.mid(2);
    return text.toDouble();
}

TEST(Format, FollowsTheTable) {
    for (const auto& [cells, line] : ReadTable(QStringLiteral(AKARIX_TEST_DATA "/formats.txt")))
        EXPECT_EQ(Format(ValueOf(cells[0]), cells[1]), cells[2]) << line;
}

TEST(Format, ANumberBeyondTheDatesOverflowsUnderADateMask) {
    EXPECT_EQ(Raised([] { return Format(20110325, u"yyyy/mm/dd"_s); }), 6);
    EXPECT_EQ(Raised([] { return Format("20110325", u"yyyy/mm/dd"_s); }), 6);
}

}  // namespace

}  // namespace akarix
