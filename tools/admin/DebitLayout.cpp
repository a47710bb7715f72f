#include "admin/DebitLayout.h"

#include <QByteArrayList>
#include <QDate>
#include <algorithm>

#include "platform/runtime/Literals.h"
#include "platform/runtime/Text.h"

namespace akarix::admin {

namespace {

using enum DebitField::Holds;

// Places, widths and codes: the record of the Japanese banks' direct-debit exchange, as several banks publish
// it. Akarix sets the two names of the header to the right, and the banks take them.
constexpr DebitField kBankHeader[] = {
    {1, 1, u"データ区分", Choice, "1"},
    {2, 2, u"種別", Choice, "91|21"},
    {4, 1, u"コード区分", Choice, "0|1"},
    {5, 10, u"委託者コード", Digits},
    {15, 40, u"委託者名", Text},
    {55, 4, u"引落日", Day},
    {59, 4, u"取引銀行番号", Digits},
    {63, 15, u"取引銀行名", TextEitherSide},
    {78, 3, u"取引支店番号", Digits},
    {81, 15, u"取引支店名", TextEitherSide},
    {96, 1, u"預金種目", Choice, "1|2|3|9"},
    {97, 7, u"口座番号", Digits},
    {104, 17, u"ダミー", Filler},
};
constexpr DebitField kBankData[] = {
    {1, 1, u"データ区分", Choice, "2"},
    {2, 4, u"銀行", Digits},
    {6, 15, u"銀行名", Text},
    {21, 3, u"支店", Digits},
    {24, 15, u"支店名", Text},
    {39, 4, u"手形交換所", DigitsOrBlank},
    {43, 1, u"種目", Choice, "1|2|3|9"},
    {44, 7, u"口座番号", Digits},
    {51, 30, u"預金者名", Text},
    {81, 10, u"引落金額", Number},
    {91, 1, u"新規", Choice, "0|1|2"},
    {92, 20, u"顧客番号", Number},
    {kResultPlace, 1, u"結果", Choice, "0|1|2|3|4|8|9"},
    {113, 8, u"ダミー", Filler},
};
constexpr DebitField kBankTrailer[] = {
    {1, 1, u"データ区分", Choice, "8"}, {2, 6, u"合計件数", Number},     {8, 12, u"合計金額", Number},
    {20, 6, u"振替済件数", Number},     {26, 12, u"振替済金額", Number}, {38, 6, u"振替不能件数", Number},
    {44, 12, u"振替不能金額", Number},  {56, 65, u"ダミー", Filler},
};
// The post office tries a second time, has neither branch names nor kinds of account, and leaves blank in a
// request what only its answer knows.
constexpr DebitField kPostHeader[] = {
    {1, 1, u"データ区分", Choice, "1"},
    {2, 2, u"種別", Choice, "21"},
    {4, 3, u"ダミー", Filler},
    {7, 8, u"委託者コード", Digits},
    {15, 40, u"委託者名", Text},
    {55, 4, u"引落日", Day},
    {59, 4, u"取引銀行番号", Choice, "9900"},
    {63, 15, u"取引郵便局名", Text},
    {78, 3, u"取引支店番号", Digits},
    {81, 17, u"ダミー", Filler},
    {98, 6, u"口座番号", Digits},
    {104, 4, u"再振替日", DayOrBlank},
    {108, 13, u"ダミー", Filler},
};
constexpr DebitField kPostData[] = {
    {1, 1, u"データ区分", Choice, "2"},
    {2, 4, u"銀行", Choice, "9900"},
    {6, 15, u"郵便局名", Text},
    {21, 3, u"支店", Digits},
    {24, 20, u"ダミー", Filler},
    {44, 7, u"口座番号", Digits},
    {51, 30, u"預金者名", Text},
    {81, 10, u"引落金額", Number},
    {91, 1, u"新規", Choice, "0|1|2"},
    {92, 20, u"顧客番号", Number},
    {kResultPlace, 1, u"結果", Choice, " |0|1|2|3|4|8|9"},
    {113, 8, u"ダミー", Filler},
};
constexpr DebitField kPostTrailer[] = {
    {1, 1, u"データ区分", Choice, "8"},
    {2, 6, u"合計件数", Number},
    {8, 12, u"合計金額", Number},
    {20, 6, u"振替済件数", DigitsOrBlank},
    {26, 12, u"振替済金額", DigitsOrBlank},
    {38, 6, u"振替不能件数", DigitsOrBlank},
    {44, 12, u"振替不能金額", DigitsOrBlank},
    {56, 65, u"ダミー", Filler},
};
constexpr DebitField kEnd[] = {
    {1, 1, u"データ区分", Choice, "9"},
    {2, 119, u"ダミー", Filler},
};

bool IsDigits(const QByteArray& bytes) {
    return std::all_of(
        bytes.begin(), bytes.end(), [](char c) { return c >= '0' && c <= '9'; });
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

template <std::size_t A, std::size_t B>
std::span<const DebitField> Either(DebitForm form, const DebitField (&bank)[A], const DebitField (&post)[B]) {
    if (form == DebitForm::Bank) return bank;
    return post;
}

}  // namespace

DebitForm DebitFormOf(const QByteArray& header) {
    return header.startsWith("121") ? DebitForm::PostOffice : DebitForm::Bank;
}

std::span<const DebitField> DebitLayout(DebitForm form, char kind) {
    switch (kind) {
        case '1':
            return Either(form, kBankHeader, kPostHeader);
        case '2':
            return Either(form, kBankData, kPostData);
        case '8':
            return Either(form, kBankTrailer, kPostTrailer);
        case '9':
            return kEnd;
        default:
            return {};
    }
}

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
