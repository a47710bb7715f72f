#include <gtest/gtest.h>

#include "platform/runtime/Literals.h"
#include "platform/runtime/Text.h"
#include "support/PrintQString.h"

namespace akarix {

namespace {

TEST(CodePage932, KnowsTheWindowsCharacters) {
    const QString text = u"～－∥①㈱髙﨑Ⅲｱﾞ表\\~あA\r\n￥\x7f\x1a\x1c\ue000"_s;
    const QByteArray bytes =
        QByteArray::fromHex("8160817c81618740878afbfcfab18756b1de955c5c7e82a0410d0a818f7f1a1cf040");
    EXPECT_EQ(ToCodePage932(text).toHex(), bytes.toHex());
    EXPECT_EQ(FromCodePage932(bytes), text);
    EXPECT_EQ(ByteLength932(text), bytes.size());
}

TEST(CodePage932, TakesTheSignsOfOtherKeyboards) {
    EXPECT_EQ(ToCodePage932(u"¥〜−—‖"_s).toHex(), "5c8160817c815c8161");
}

TEST(CodePage932, DropsAHalfCharacterAtTheEnd) {
    const QByteArray bytes = ToCodePage932(u"aソ表"_s);
    EXPECT_EQ(FromCodePage932(bytes.left(2)), u"a"_s);
    EXPECT_EQ(FromCodePage932(bytes.left(4)), u"aソ"_s);
}

TEST(CodePage932, PutsAQuestionMarkForWhatHasNoPlace) {
    EXPECT_EQ(ToCodePage932(u"a😀b\uFE0F"_s), "a??b?") << "as many as it takes in a text";
    EXPECT_EQ(ToCodePage932(u"ไ한"_s), "??");
    EXPECT_EQ(FromCodePage932(QByteArray::fromHex("6180ff62")), u"a・・b"_s);
}

}  // namespace

}  // namespace akarix
