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
    EXPECT_EQ(NullToEmpty(u" あ "_qs), u"あ"_qs);
    EXPECT_EQ(NullToEmpty(u"　あ"_qs), u"　あ"_qs) << "a full-width blank is a character";
    EXPECT_EQ(NullToEmpty(Currency(1200)), u"1200"_qs);
    EXPECT_EQ(NullToZero(Variant::Null()), Variant(std::int16_t{0}));
    EXPECT_EQ(NullToZero(u"x"_qs), Variant(u"x"_qs));
    EXPECT_EQ(EmptyToBlank({}), u" "_qs);
    EXPECT_FALSE(HasText(Variant::Null()));
    EXPECT_FALSE(HasText(u"  "_qs));
    EXPECT_TRUE(HasText(u" a"_qs));
}

}  // namespace
}  // namespace akarix
