#include "platform/runtime/Text.h"

#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

namespace {

// Half-width katakana from U+FF61 on, and the same signs in full width.
const QString kWideKana =
    u"。「」、・ヲァィゥェォャュョッーアイウエオカキクケコサシスセソタチツテトナニヌネノハヒフヘホマミムメモ"
    u"ヤ"
    "ユヨ"
    "ラリルレロワン゛゜"_s;
constexpr char16_t kFirstHalfKana = 0xFF61;
constexpr char16_t kVoiced = 0xFF9E;
constexpr char16_t kHalfVoiced = 0xFF9F;

// Each pair is a kana and what a mark behind it makes of it.
const QString kVoicedPairs =
    u"カガキギクグケゲコゴサザシジスズセゼソゾタダチヂツヅテデトドハバヒビフブヘベホボウヴ"_s;
const QString kHalfVoicedPairs = u"ハパヒピフプヘペホポ"_s;

QChar Partner(const QString& pairs, QChar c, bool toMarked) {
    for (qsizetype i = 0; i + 1 < pairs.size(); i += 2)
        if (pairs[toMarked ? i : i + 1] == c) return pairs[toMarked ? i + 1 : i];
    return {};
}

bool IsHalfKana(QChar c) {
    return c >= QChar(kFirstHalfKana) && c <= QChar(kHalfVoiced);
}

QString ToWide(const QString& text) {
    QString wide;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (IsHalfKana(c)) {
            const QChar plain = kWideKana[c.unicode() - kFirstHalfKana];
            const QChar mark = i + 1 < text.size() ? text[i + 1] : QChar();
            const QChar joined = mark == QChar(kVoiced)       ? Partner(kVoicedPairs, plain, true)
                                 : mark == QChar(kHalfVoiced) ? Partner(kHalfVoicedPairs, plain, true)
                                                              : QChar();
            wide += joined.isNull() ? plain : joined;
            if (!joined.isNull()) ++i;
        } else if (c == u' ') {
            wide += u'　';
        } else if (c == u'\\') {
            wide += c;  // in the code page it is the yen sign as well as the backslash, and belongs to
                        // neither alone
        } else if (c > u' ' && c <= u'~') {
            wide += QChar(c.unicode() + 0xFEE0);
        } else {
            wide += c;
        }
    }
    return wide;
}

QString ToNarrow(const QString& text) {
    QString narrow;
    for (QChar c : text) {
        QChar mark;
        if (const QChar plain = Partner(kVoicedPairs, c, false); !plain.isNull()) {
            c = plain;
            mark = QChar(kVoiced);
        } else if (const QChar plainHalf = Partner(kHalfVoicedPairs, c, false); !plainHalf.isNull()) {
            c = plainHalf;
            mark = QChar(kHalfVoiced);
        }
        if (const qsizetype kana = kWideKana.indexOf(c); kana >= 0) {
            narrow += QChar(static_cast<char16_t>(kFirstHalfKana + kana));
            if (!mark.isNull()) narrow += mark;
        } else if (c == u'　') {
            narrow += u' ';
        } else if (c == u'￥' || c == u'¥') {
            narrow += u'\\';
        } else if (c == u'’' || c == u'‘') {
            narrow += u'\'';
        } else if (c == u'”' || c == u'“') {
            narrow += u'"';
        } else if (c == u'−') {
            narrow += u'-';
        } else if (c >= u'！' && c <= u'～') {
            narrow += QChar(c.unicode() - 0xFEE0);
        } else {
            narrow += c;
        }
    }
    return narrow;
}

constexpr char16_t kKanaShift = 0x60;  // between the hiragana and the katakana block

QString ToKatakana(QString text) {
    for (QChar& c : text)
        if ((c >= u'ぁ' && c <= u'ゔ') || c == u'ゝ' || c == u'ゞ') c = QChar(c.unicode() + kKanaShift);
    return text;
}

}  // namespace

QString StrConv(const QString& text, int conversion) {
    constexpr int kKnown = WideChars | NarrowChars | Katakana;
    const bool contradicts = (conversion & WideChars) && (conversion & NarrowChars);
    if (contradicts || (conversion & ~kKnown)) throw RuntimeError(5);
    QString result = text;
    if (conversion & WideChars) result = ToWide(result);
    if (conversion & Katakana) result = ToKatakana(result);
    if (conversion & NarrowChars) result = ToNarrow(result);
    return result;
}

}  // namespace akarix
