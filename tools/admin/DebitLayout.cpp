#include "admin/DebitLayout.h"

#include <QDate>
#include <algorithm>

#include "platform/runtime/CodePage932.h"

namespace akarix::admin {

namespace {

using enum DebitField::Holds;

// Places, widths and codes: the record of the Japanese banks' direct-debit exchange, as several banks publish
// it.
constexpr DebitField header[] = {
    {1, 1, u"データ区分", Choice, "1"},
    {2, 2, u"種別", Choice, "91"},
    {4, 1, u"コード区分", Choice, "0|1"},
    {5, 10, u"委託者コード", Digits},
    {15, 40, u"委託者名", Text},
    {55, 4, u"引落日", Day},
    {59, 4, u"取引銀行番号", Digits},
    {63, 15, u"取引銀行名", Text},
    {78, 3, u"取引支店番号", Digits},
    {81, 15, u"取引支店名", Text},
    {96, 1, u"預金種目", Choice, "1|2|3|9"},
    {97, 7, u"口座番号", Digits},
    {104, 17, u"ダミー", Filler},
};
constexpr DebitField data[] = {
    {1, 1, u"データ区分", Choice, "2"},
    {2, 4, u"銀行", Digits},
    {6, 15, u"銀行名", Text},
    {21, 3, u"支店", Digits},
    {24, 15, u"支店名", Text},
    {39, 4, u"手形交換所", Clearing},
    {43, 1, u"種目", Choice, "1|2|3|9"},
    {44, 7, u"口座番号", Digits},
    {51, 30, u"預金者名", Text},
    {81, 10, u"引落金額", Number},
    {91, 1, u"新規", Choice, "0|1|2"},
    {92, 20, u"顧客番号", Number},
    {kResultPlace, 1, u"結果", Choice, "0|1|2|3|4|8|9"},
    {113, 8, u"ダミー", Filler},
};
constexpr DebitField trailer[] = {
    {1, 1, u"データ区分", Choice, "8"}, {2, 6, u"合計件数", Number},     {8, 12, u"合計金額", Number},
    {20, 6, u"振替済件数", Number},     {26, 12, u"振替済金額", Number}, {38, 6, u"振替不能件数", Number},
    {44, 12, u"振替不能金額", Number},  {56, 65, u"ダミー", Filler},
};
constexpr DebitField end[] = {
    {1, 1, u"データ区分", Choice, "9"},
    {2, 119, u"ダミー", Filler},
};

bool isDigits(const QByteArray& bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool isBlank(const QByteArray& bytes) {
    return bytes.trimmed().isEmpty();
}

/// Digits, capitals, half-width kana with its two marks, blank and four signs; neither small kana nor the
/// long-vowel mark.
bool isBankCharacter(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || byte == 0xA6 ||
           (byte >= 0xB1 && byte <= 0xDF) || QByteArrayView(" ()-.").contains(c);
}

QString refusedCharacters(const QByteArray& bytes) {
    QString refused;
    const QString text = FromCodePage932(bytes);
    for (const QChar c : text) {
        const QByteArray one = ToCodePage932(c);
        const bool fits = one.size() == 1 && isBankCharacter(one[0]);
        if (!fits && !refused.contains(c)) refused += c;
    }
    return refused;
}

QString textDeparture(const QByteArray& bytes) {
    const QString refused = refusedCharacters(bytes);
    if (!refused.isEmpty()) return QStringLiteral("使えない文字「%1」").arg(refused);
    if (bytes.startsWith(' ') && !isBlank(bytes)) return QStringLiteral("左詰めではない");
    return {};
}

bool isDay(const QByteArray& bytes) {
    constexpr int kLeapYear = 2024;
    return isDigits(bytes) && QDate::isValid(kLeapYear, bytes.left(2).toInt(), bytes.mid(2).toInt());
}

QString shown(const QByteArray& bytes) {
    return isBlank(bytes) ? QStringLiteral("空白") : QStringLiteral("「%1」").arg(FromCodePage932(bytes));
}

}  // namespace

std::span<const DebitField> DebitLayout(char kind) {
    switch (kind) {
        case '1':
            return header;
        case '2':
            return data;
        case '8':
            return trailer;
        case '9':
            return end;
        default:
            return {};
    }
}

QString DebitKindName(char kind) {
    switch (kind) {
        case '1':
            return QStringLiteral("ヘッダー");
        case '2':
            return QStringLiteral("データ");
        case '8':
            return QStringLiteral("トレーラ");
        case '9':
            return QStringLiteral("エンド");
        default:
            return QStringLiteral("不明");
    }
}

QString DebitResultName(char code) {
    switch (code) {
        case '0':
            return QStringLiteral("振替済");
        case '1':
            return QStringLiteral("資金不足");
        case '2':
            return QStringLiteral("預金取引なし");
        case '3':
            return QStringLiteral("預金者の都合による停止");
        case '4':
            return QStringLiteral("依頼書なし");
        case '8':
            return QStringLiteral("委託者の都合による停止");
        case '9':
            return QStringLiteral("その他");
        default:
            return {};
    }
}

QString FieldDeparture(const DebitField& field, const QByteArray& bytes) {
    switch (field.holds) {
        case Digits:
        case Number:
            return isDigits(bytes) ? QString() : QStringLiteral("数字ではない: ") + shown(bytes);
        case Text:
            return textDeparture(bytes);
        case Day:
            return isDay(bytes) ? QString() : QStringLiteral("月日ではない: ") + shown(bytes);
        case Choice:
            return QByteArray(field.choices).split('|').contains(bytes)
                       ? QString()
                       : QStringLiteral("%1 は定められた値（%2）にない")
                             .arg(shown(bytes),
                                  QString::fromLatin1(field.choices).replace(u'|', QStringLiteral("、")));
        case Clearing:
            return isDigits(bytes) || isBlank(bytes)
                       ? QString()
                       : QStringLiteral("数字でも空白でもない: ") + shown(bytes);
        case Filler:
            return isBlank(bytes) ? QString() : QStringLiteral("空白ではない: ") + shown(bytes);
    }
    return {};
}

}  // namespace akarix::admin
