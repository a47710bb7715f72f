#include "values/Text.h"

#include <gtest/gtest.h>

namespace akarix {
namespace {

TEST(Text, CutsByBytesAndLosesASplitCharacter) {
    struct Case {
        const char16_t* text;
        int bytes;
        const char16_t* kept;
    };
    const Case cases[] = {
        {u"あいう", 4, u"あい"}, {u"あいう", 5, u"あい"}, {u"あいう", 6, u"あいう"}, {u"ｱｲｳ", 2, u"ｱｲ"},
        {u"aあb", 2, u"a"},      {u"㈱髙～", 5, u"㈱髙"}, {u"表示", 2, u"表"},       {u"abc", 0, u""},
        {u"", 4, u""},           {u"ab𠮷", 9, u"ab?"},  // no place in the code page
    };
    for (const Case& c : cases) {
        EXPECT_EQ(CutBytes(QString::fromUtf16(c.text), c.bytes), QString::fromUtf16(c.kept));
    }
}

TEST(Text, NullAndBlank) {
    EXPECT_EQ(NullToEmpty(Variant::Null()), QString());
    EXPECT_EQ(NullToEmpty(" あ "), "あ");
    EXPECT_EQ(NullToEmpty("　あ"), "　あ") << "a full-width blank is a character";
    EXPECT_EQ(NullToEmpty(Currency(1200)), "1200");
    EXPECT_EQ(NullToZero(Variant::Null()), Variant(std::int16_t{0}));
    EXPECT_EQ(NullToZero("x"), Variant("x"));
    EXPECT_EQ(EmptyToBlank({}), " ");
    EXPECT_FALSE(HasText(Variant::Null()));
    EXPECT_FALSE(HasText("  "));
    EXPECT_TRUE(HasText(" a"));
}

}  // namespace
}  // namespace akarix
