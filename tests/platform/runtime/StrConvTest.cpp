#include <gtest/gtest.h>

#include "platform/runtime/Text.h"

namespace akarix {

namespace {

TEST(StrConv, Converts) {
    struct Case {
        const char* text;
        int conversion;
        const char* result;
    };
    const Case cases[] = {
        {"ﾔﾏﾀﾞ ﾊﾟﾝ-12", WideChars, "ヤマダ　パン－１２"},
        {"ｶﾞｷﾞｸﾞｱﾞﾞﾟｳﾞ", WideChars, "ガギグア゛゛゜ヴ"},
        {"｢ｱ｣､･ｰ｡", WideChars, "「ア」、・ー。"},
        {"\\1,200~", WideChars, "\\１，２００～"},
        {"ヤマダ　パン－１２ヴ", NarrowChars, "ﾔﾏﾀﾞ ﾊﾟﾝ-12ｳﾞ"},
        {"￥１，２００「ー」漢字ひらがな", NarrowChars, "\\1,200｢ｰ｣漢字ひらがな"},
        {"やまだ ゔぁゞ", Katakana, "ヤマダ ヴァヾ"},
        {"やまだ がす", Katakana + NarrowChars, "ﾔﾏﾀﾞ ｶﾞｽ"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(StrConv(QString::fromUtf8(c.text), c.conversion).toStdString(), c.result) << c.text;
}

}  // namespace

}  // namespace akarix
