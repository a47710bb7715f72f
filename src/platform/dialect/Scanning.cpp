#include "platform/dialect/Scanning.h"

#include <QDate>
#include <array>

namespace akarix {
namespace {

constexpr qsizetype kSurelyFits = 18;  // digits in 64 bits

bool IsDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

// What each character of the first 128 can be; nearly all of a statement is made of them. A point may begin a
// literal.
enum : std::uint8_t { kNothing, kNamePart = 1, kNameStart = 2, kLiteralStart = 4, kBracket = 8, kPoint = 16 };

constexpr std::array<std::uint8_t, 128> kRoles = [] {
    std::array<std::uint8_t, 128> roles{};
    for (std::size_t c = 'a'; c <= 'z'; ++c)
        roles[c] = roles[c - 'a' + 'A'] = kNameStart | kNamePart;
    for (std::size_t c = '0'; c <= '9'; ++c)
        roles[c] = kNamePart | kLiteralStart;
    roles['_'] = kNameStart | kNamePart;
    roles['$'] = kNamePart;
    roles['['] = kBracket;
    roles['.'] = kPoint;
    roles['\''] = roles['"'] = roles['#'] = kLiteralStart;
    return roles;
}();

bool IsNameStart(QChar c) {
    if (c.unicode() < kRoles.size()) return (kRoles[c.unicode()] & kNameStart) != 0;
    return c.isLetter() || c.isSurrogate();
}

bool IsNamePart(QChar c) {
    if (c.unicode() < kRoles.size()) return (kRoles[c.unicode()] & kNamePart) != 0;
    return IsNameStart(c) || c.isDigit() || c.isMark();
}

qsizetype DigitsEnd(QStringView sql, qsizetype place) {
    while (place < sql.size() && IsDigit(sql[place]))
        ++place;
    return place;
}

Literal ReadFraction(QStringView text, bool exponent) {
    const qsizetype point = text.indexOf(u'.');
    const QStringView whole = point < 0 ? text : text.first(point);
    QStringView fraction = point < 0 ? QStringView() : text.sliced(point + 1);
    while (fraction.endsWith(u'0'))
        fraction.chop(1);
    if (!exponent && fraction.size() <= 4) {
        bool fits = false;
        const qlonglong scaled =
            (whole.toString() + fraction.toString().leftJustified(4, u'0')).toLongLong(&fits);
        if (fits) return {Literal::Kind::Decimal, static_cast<std::int64_t>(scaled)};
    }
    return {Literal::Kind::Real, text.toDouble()};
}

ScannedLiteral ScanNumeral(QStringView sql, qsizetype from) {
    if (const auto whole = ScanWholeNumeral(sql, from))
        return {{Literal::Kind::Integer, whole->value}, sql.sliced(from, whole->end - from), whole->end};
    qsizetype end = DigitsEnd(sql, from);
    const bool point = end < sql.size() && sql[end] == u'.';
    if (point) end = DigitsEnd(sql, end + 1);
    bool exponent = false;
    if (end < sql.size() && (sql[end] == u'e' || sql[end] == u'E')) {
        qsizetype ahead = end + 1;
        if (ahead < sql.size() && (sql[ahead] == u'+' || sql[ahead] == u'-')) ++ahead;
        exponent = ahead < sql.size() && IsDigit(sql[ahead]);
        if (exponent) end = DigitsEnd(sql, ahead);
    }
    const QStringView text = sql.sliced(from, end - from);
    if (point || exponent || text.size() > kSurelyFits) return {ReadFraction(text, exponent), text, end};
    return {{Literal::Kind::Integer, std::int64_t{text.toLongLong()}}, text, end};
}

std::optional<ScannedLiteral> ScanText(QStringView sql, qsizetype from) {
    const QChar quote = sql[from];
    bool doubled = false;
    for (qsizetype place = from + 1; place < sql.size(); ++place) {
        if (sql[place] != quote) continue;
        if (place + 1 < sql.size() && sql[place + 1] == quote) {
            doubled = true;
            ++place;
            continue;
        }
        const QStringView inside = sql.sliced(from + 1, place - from - 1);
        QString value = inside.toString();
        if (doubled) value.replace(QString(2, quote), QString(quote));
        return ScannedLiteral{{Literal::Kind::Text, std::move(value)}, inside, place + 1};
    }
    return std::nullopt;
}

std::optional<ScannedLiteral> ScanDate(QStringView sql, qsizetype from) {
    const qsizetype end = sql.indexOf(u'#', from + 1);
    if (end < 0) return std::nullopt;
    const QStringView inside = sql.sliced(from + 1, end - from - 1);
    const QDate day = QDate::fromString(inside, u"yyyy/M/d");
    if (!day.isValid()) return std::nullopt;
    const auto serial = static_cast<double>(QDate(1899, 12, 30).daysTo(day));
    return ScannedLiteral{{Literal::Kind::Date, serial}, inside, end + 1};
}

}  // namespace

qsizetype NameEnd(QStringView sql, qsizetype place) {
    const QChar* const end = sql.end();
    const QChar* c = sql.begin() + place;
    if (c >= end || !IsNameStart(*c)) return place;
    while (c < end && IsNamePart(*c))
        ++c;
    return c - sql.begin();
}

bool BeginsLiteral(QStringView sql, qsizetype place) {
    const QChar c = sql[place];
    if (c == u'.') return place + 1 < sql.size() && IsDigit(sql[place + 1]);
    return c.unicode() < kRoles.size() && (kRoles[c.unicode()] & kLiteralStart) != 0;
}

QChar* CopyPlain(QStringView sql, qsizetype& place, QChar* to) {
    const QChar* const end = sql.end();
    const QChar* c = sql.begin() + place;
    while (c < end) {
        const char16_t character = c->unicode();
        const std::uint8_t role = character < kRoles.size() ? kRoles[character] : std::uint8_t{kNothing};
        if (role == kNothing ? IsNameStart(*c) : (role & kNameStart) != 0) {
            do {
                *to++ = *c++;
            } while (c < end && IsNamePart(*c));
            continue;
        }
        if ((role & kBracket) != 0 || (role != kNothing && BeginsLiteral(sql, c - sql.begin()))) break;
        *to++ = *c++;
    }
    place = c - sql.begin();
    return to;
}

std::optional<WholeNumeral> ScanWholeNumeral(QStringView sql, qsizetype from) {
    const QChar* const end = sql.end();
    const QChar* c = sql.begin() + from;
    std::int64_t value = 0;
    for (; c < end && IsDigit(*c); ++c)
        value = static_cast<std::int64_t>(static_cast<std::uint64_t>(value) * 10 + (c->unicode() - u'0'));
    const qsizetype length = c - sql.begin() - from;
    const bool goesOn = c < end && (*c == u'.' || *c == u'e' || *c == u'E');
    if (length == 0 || length > kSurelyFits || goesOn) return std::nullopt;
    return WholeNumeral{value, from + length};
}

std::optional<ScannedLiteral> ScanLiteral(QStringView sql, qsizetype place) {
    const QChar c = sql[place];
    if (c == u'\'' || c == u'"') return ScanText(sql, place);
    if (c == u'#') return ScanDate(sql, place);
    return ScanNumeral(sql, place);
}

}  // namespace akarix
