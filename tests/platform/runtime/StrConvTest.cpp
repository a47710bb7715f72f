#include <gtest/gtest.h>

#include "platform/runtime/Raises.h"
#include "platform/runtime/StrConv.h"

namespace akarix {

namespace {

TEST(StrConv, Converts) {
    struct Case {
        const char* text;
        int conversion;
        const char* result;
    };
    const Case cases[] = {
        {"akarix ＡＢｃ", UpperCase, "AKARIX ＡＢＣ"},
        {"AKARIX Ａ", LowerCase, "akarix ａ"},
        {"the qUICK　brown\tfox o'neil", ProperCase, "The Quick　Brown\tFox O'neil"},
        {"ﾔﾏﾀﾞ ﾊﾟﾝ-12", WideChars, "ヤマダ　パン－１２"},
        {"ｶﾞｷﾞｸﾞｱﾞﾞﾟｳﾞ", WideChars, "ガギグア゛゛゜ヴ"},
        {"｢ｱ｣､･ｰ｡", WideChars, "「ア」、・ー。"},
        {"\\1,200~", WideChars, "\\１，２００～"},
        {"ヤマダ　パン－１２ヴ", NarrowChars, "ﾔﾏﾀﾞ ﾊﾟﾝ-12ｳﾞ"},
        {"￥１，２００「ー」漢字ひらがな", NarrowChars, "\\1,200｢ｰ｣漢字ひらがな"},
        {"やまだ ゔぁゞ", Katakana, "ヤマダ ヴァヾ"},
        {"ヤマダーヶ", Hiragana, "やまだーヶ"},
        {"やまだ がす", Katakana + NarrowChars, "ﾔﾏﾀﾞ ｶﾞｽ"},
        {"ﾔﾏﾀﾞ", Hiragana + WideChars, "やまだ"},
        {"abcｱ", UpperCase + WideChars, "ＡＢＣア"},
        {"", WideChars, ""},
    };
    for (const Case& c : cases)
        EXPECT_EQ(StrConv(QString::fromUtf8(c.text), c.conversion).toStdString(), c.result) << c.text;
}

TEST(StrConv, RefusesContradictions) {
    for (int conversion : {WideChars + NarrowChars, Katakana + Hiragana, 64, 128, -1})
        EXPECT_EQ(raised([&] { return StrConv(u"a"_qs, conversion); }), 5);
}

}  // namespace

}  // namespace akarix
