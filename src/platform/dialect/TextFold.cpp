#include "platform/dialect/TextFold.h"

#include <algorithm>

#include "platform/runtime/Text.h"

namespace akarix {
namespace {

constexpr char16_t kToAscii = 0xFEE0;     // from the full-width signs down to their half-width ones
constexpr char16_t kToKatakana = 0x60;    // from the hiragana block up to the katakana block
constexpr char16_t kLettersEnd = 0x2C80;  // of the scripts that know case, but for the full-width letters

bool IsHalfKana(QChar c) {
    return c >= QChar(0xFF61) && c <= QChar(0xFF9F);
}

char16_t Folded(char16_t c) {
    if (c >= u'！' && c <= u'～') c = static_cast<char16_t>(c - kToAscii);
    if (c < 0x80) return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + (u'a' - u'A')) : c;
    if (c < kLettersEnd) {
        if (c == u'¥') return u'\\';
        return c == u'−' ? u'-' : QChar(c).toCaseFolded().unicode();
    }
    if ((c >= u'ぁ' && c <= u'ゖ') || c == u'ゝ' || c == u'ゞ') return static_cast<char16_t>(c + kToKatakana);
    switch (c) {
        case u'　':
            return u' ';
        case u'￥':
            return u'\\';
        case u'〜':
            return u'~';
        default:
            return c;
    }
}

}  // namespace

QString FoldText(const QString& text) {
    const bool halfKana = std::any_of(text.begin(), text.end(), IsHalfKana);
    QString result = halfKana ? StrConv(text, WideChars) : text;
    for (QChar& c : result)
        c = QChar(Folded(c.unicode()));
    return result;
}

int CompareTexts(const QString& a, const QString& b) {
    return FoldText(a).compare(FoldText(b));
}

}  // namespace akarix
