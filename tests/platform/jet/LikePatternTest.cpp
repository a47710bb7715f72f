#include "platform/jet/LikePattern.h"

#include <gtest/gtest.h>

#include "platform/runtime/RuntimeError.h"

namespace akarix {
namespace {

TEST(LikePattern, MatchesTheDialectsWildcards) {
    struct Case {
        const char16_t* pattern;
        const char16_t* text;
        bool matches;
    };
    const Case cases[] = {
        {u"", u"", true},
        {u"", u"a", false},
        {u"*", u"", true},
        {u"*ｱ*", u"ｶｱｻ", true},
        {u"*ｱ", u"ｱｶ", false},
        {u"ア*", u"アイ", true},
        {u"a?c", u"ABC", true},
        {u"a?c", u"ac", false},
        {u"##", u"42", true},
        {u"#", u"４", false},
        {u"[a-c]x", u"Bx", true},
        {u"[!a-c]x", u"bx", false},
        {u"[!a-c]x", u"dx", true},
        {u"[a-]", u"-", true},
        {u"[*]", u"*", true},
        {u"[*]", u"x", false},
        {u"[?#]", u"#", true},
        {u"a[]b", u"ab", true},
        {u"[!]", u"!", true},
        {u"*a*b*c", u"xaybbzc", true},
        {u"*a*b*c", u"xaybbz", false},
        {u"%_", u"ab", false},
        {u"%_", u"%_", true},
        {u"*ab", u"aab", true},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(likeMatches(QStringView(one.pattern), QStringView(one.text)), one.matches)
            << QString::fromUtf16(one.pattern).toStdString() << " : "
            << QString::fromUtf16(one.text).toStdString();
    }
    EXPECT_THROW(likeMatches(u"a[b", u""), RuntimeError);
    // Many stars take no more than length times length steps.
    EXPECT_FALSE(likeMatches(QString(QStringLiteral("*a")).repeated(40) + u'b', QString(5000, u'a')));
}

}  // namespace
}  // namespace akarix
