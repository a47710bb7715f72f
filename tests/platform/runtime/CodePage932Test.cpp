#include <gtest/gtest.h>

#include "platform/runtime/Literals.h"
#include "platform/runtime/Text.h"

namespace akarix {

namespace {

TEST(CodePage932, KnowsTheWindowsCharacters) {
    struct Case {
        const char16_t* text;
        const char* hex;
    };
    const Case cases[] = {
        {u"～", "8160"},     {u"－", "817c"},
        {u"∥", "8161"},      {u"①", "8740"},
        {u"㈱", "878a"},     {u"髙", "fbfc"},
        {u"﨑", "fab1"},     {u"Ⅲ", "8756"},
        {u"ｱﾞ", "b1de"},     {u"表", "955c"},
        {u"\\~", "5c7e"},    {u"あA\r\n", "82a0410d0a"},
        {u"￥", "818f"},     {u"\x7f\x1a\x1c", "7f1a1c"},
        {u"\ue000", "f040"},
    };
    for (const Case& c : cases) {
        const QString text = QString::fromUtf16(c.text);
        EXPECT_EQ(ToCodePage932(text).toHex().toStdString(), c.hex);
        EXPECT_EQ(FromCodePage932(QByteArray::fromHex(c.hex)), text) << c.hex;
        EXPECT_EQ(ByteLength932(text), static_cast<int>(strlen(c.hex) / 2));
    }
}

TEST(CodePage932, TakesTheSignsOfOtherKeyboards) {
    EXPECT_EQ(ToCodePage932(u"¥〜−—‖"_s).toHex(), "5c8160817c815c8161");
}

TEST(CodePage932, DropsAHalfCharacterAtTheEnd) {
    const QByteArray bytes = ToCodePage932(u"aソ表"_s);
    EXPECT_EQ(FromCodePage932(bytes.left(2)), u"a"_s);
    EXPECT_EQ(FromCodePage932(bytes.left(3)), u"aソ"_s);
    EXPECT_EQ(FromCodePage932(bytes.left(4)), u"aソ"_s);
}

TEST(CodePage932, PutsAQuestionMarkForWhatHasNoPlace) {
    EXPECT_EQ(ToCodePage932(u"a😀b\uFE0F"_s), "a??b?") << "as many as it takes in a text";
    EXPECT_EQ(ToCodePage932(u"ไ한"_s), "??");
    EXPECT_EQ(FromCodePage932(QByteArray("a\x80\xff"
                                         "b")),
              u"a・・b"_s);
    EXPECT_TRUE(ToCodePage932(QString()).isEmpty());
    EXPECT_TRUE(FromCodePage932(QByteArray()).isEmpty());
}

}  // namespace

}  // namespace akarix
