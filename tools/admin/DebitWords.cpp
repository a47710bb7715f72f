#include "admin/DebitWords.h"

#include <QByteArrayList>
#include <QDate>
#include <algorithm>

#include "platform/runtime/Literals.h"
#include "platform/runtime/Text.h"

namespace akarix::admin {

namespace {

using enum DebitField::Holds;

bool IsDigits(const QByteArray& bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool IsBlank(const QByteArray& bytes) {
    return bytes.trimmed().isEmpty();
}

/// Digits, capitals, half-width kana with its two marks, blank and four signs; neither small kana nor the
/// long-vowel mark.
bool IsBankCharacter(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || byte == 0xA6 ||
           (byte >= 0xB1 && byte <= 0xDF) || QByteArrayView(" ()-.").contains(c);
}

QString RefusedCharacters(const QByteArray& bytes) {
    QString refused;
    const QString text = FromCodePage932(bytes);
    for (const QChar c : text) {
        const QByteArray one = ToCodePage932(c);
        const bool fits = one.size() == 1 && IsBankCharacter(one[0]);
        if (!fits && !refused.contains(c)) refused += c;
    }
    return refused;
}

QString TextDeparture(const QByteArray& bytes, bool toTheLeft) {
    const QString refused = RefusedCharacters(bytes);
    if (!refused.isEmpty()) return u"使えない文字「%1」"_s.arg(refused);
    if (toTheLeft && bytes.startsWith(' ') && !IsBlank(bytes)) return u"左詰めではない"_s;
    return {};
}

bool IsDay(const QByteArray& bytes) {
    constexpr int kLeapYear = 2024;
    return IsDigits(bytes) && QDate::isValid(kLeapYear, bytes.left(2).toInt(), bytes.mid(2).toInt());
}

QString Shown(const QByteArray& bytes) {
    return IsBlank(bytes) ? u"空白"_s : u"「%1」"_s.arg(FromCodePage932(bytes));
}

QString Listed(const QByteArrayList& choices) {
    QStringList shown;
    for (const QByteArray& choice : choices)
        shown += choice == " " ? u"空白"_s : QString::fromLatin1(choice);
    return shown.join(u"、"_s);
}

}  // namespace

QString DebitKindName(char kind) {
    switch (kind) {
        case '1':
            return u"ヘッダー"_s;
        case '2':
            return u"データ"_s;
        case '8':
            return u"トレーラ"_s;
        case '9':
            return u"エンド"_s;
        default:
            return u"不明"_s;
    }
}

QString DebitResultName(char code) {
    switch (code) {
        case '0':
            return u"振替済"_s;
        case '1':
            return u"資金不足"_s;
        case '2':
            return u"預金取引なし"_s;
        case '3':
            return u"預金者の都合による停止"_s;
        case '4':
            return u"依頼書なし"_s;
        case '8':
            return u"委託者の都合による停止"_s;
        case '9':
            return u"その他"_s;
        default:
            return {};
    }
}

QString FieldDeparture(const DebitField& field, const QByteArray& bytes) {
    switch (field.holds) {
        case Digits:
        case Number:
            return IsDigits(bytes) ? QString() : u"数字ではない: "_s + Shown(bytes);
        case DigitsOrBlank:
            return IsDigits(bytes) || IsBlank(bytes) ? QString() : u"数字でも空白でもない: "_s + Shown(bytes);
        case Text:
        case TextEitherSide:
            return TextDeparture(bytes, field.holds == Text);
        case Day:
        case DayOrBlank:
            return IsDay(bytes) || (field.holds == DayOrBlank && IsBlank(bytes))
                       ? QString()
                       : u"月日ではない: "_s + Shown(bytes);
        case Choice: {
            const QByteArrayList choices = QByteArray(field.choices).split('|');
            return choices.contains(bytes)
                       ? QString()
                       : u"%1 は定められた値（%2）にない"_s.arg(Shown(bytes), Listed(choices));
        }
        case Filler:
            return IsBlank(bytes) ? QString() : u"空白ではない: "_s + Shown(bytes);
    }
    return {};
}

}  // namespace akarix::admin
