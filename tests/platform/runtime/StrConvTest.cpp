#include <gtest/gtest.h>

#include "platform/runtime/Text.h"

namespace akarix {

namespace {

TEST(StrConv, Converts) {
    const std::tuple<const char*, int, const char*> cases[] = {
        {"ﾔﾏﾀﾞ ﾊﾟﾝ-12", WideChars, "ヤマダ　パン－１２"},
        {"ｶﾞｷﾞｸﾞｱﾞﾞﾟｳﾞ", WideChars, "ガギグア゛゛゜ヴ"},
        {"\\1,200~", WideChars, "\\１，２００～"},
        {"ヤマダ　パン－１２ヴ", NarrowChars, "ﾔﾏﾀﾞ ﾊﾟﾝ-12ｳﾞ"},
        {"￥１，２００「ー」漢字ひらがな", NarrowChars, "\\1,200｢ｰ｣漢字ひらがな"},
        {"やまだ ゔぁゞ", Katakana, "ヤマダ ヴァヾ"},
        {"やまだ がす", Katakana + NarrowChars, "ﾔﾏﾀﾞ ｶﾞｽ"},
    };
    for (const auto& [text, conversion, result] : cases)
        EXPECT_EQ(StrConv(QString::fromUtf8(text), conversion).toStdString(), result) << text;
}

}  // namespace

}  // namespace akarix
