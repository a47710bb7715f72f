#include "platform/jet/Scanning.h"

#include <array>

#include "platform/jet/DateLiteral.h"

namespace akarix {
namespace {

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

// What each character of the first 128 can be; nearly all of a statement is made of them.
enum : std::uint8_t { kNothing, kNamePart = 1, kNameStart = 2, kLiteralStart = 4 };

constexpr std::array<std::uint8_t, 128> kRoles = [] {
    std::array<std::uint8_t, 128> roles{};
    for (std::size_t c = 'a'; c <= 'z'; ++c) {
        roles[c] = roles[c - 'a' + 'A'] = kNameStart | kNamePart;
    }
    for (std::size_t c = '0'; c <= '9'; ++c)
        roles[c] = kNamePart | kLiteralStart;
    roles['_'] = kNameStart | kNamePart;
    roles['$'] = kNamePart;
    roles['\''] = roles['"'] = roles['#'] = kLiteralStart;
    return roles;
}();

bool isNameStart(QChar c) {
    if (c.unicode() < kRoles.size()) return (kRoles[c.unicode()] & kNameStart) != 0;
    return c.isLetter() || c.isSurrogate();
}

bool isNamePart(QChar c) {
    if (c.unicode() < kRoles.size()) return (kRoles[c.unicode()] & kNamePart) != 0;
    return isNameStart(c) || c.isDigit() || c.isMark();
}

qsizetype digitsEnd(QStringView sql, qsizetype place) {
    while (place < sql.size() && isDigit(sql[place]))
        ++place;
    return place;
}

Literal readFraction(QStringView text, bool exponent) {
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

ScannedLiteral scanNumeral(QStringView sql, qsizetype from) {
    constexpr qsizetype kSurelyFits = 18;
    qsizetype end = digitsEnd(sql, from);
    const bool point = end < sql.size() && sql[end] == u'.';
    if (point) end = digitsEnd(sql, end + 1);
    bool exponent = false;
    if (end < sql.size() && (sql[end] == u'e' || sql[end] == u'E')) {
        qsizetype ahead = end + 1;
        if (ahead < sql.size() && (sql[ahead] == u'+' || sql[ahead] == u'-')) ++ahead;
        exponent = ahead < sql.size() && isDigit(sql[ahead]);
        if (exponent) end = digitsEnd(sql, ahead);
    }
    const QStringView text = sql.sliced(from, end - from);
    if (point || exponent || text.size() > kSurelyFits) return {readFraction(text, exponent), text, end};
    std::int64_t value = 0;
    for (const QChar digit : text)
        value = value * 10 + (digit.unicode() - u'0');
    return {{Literal::Kind::Integer, value}, text, end};
}

std::optional<ScannedLiteral> scanText(QStringView sql, qsizetype from) {
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

std::optional<ScannedLiteral> scanDate(QStringView sql, qsizetype from) {
    const qsizetype end = sql.indexOf(u'#', from + 1);
    if (end < 0) return std::nullopt;
    const QStringView inside = sql.sliced(from + 1, end - from - 1);
    const std::optional<double> serial = parseDateLiteral(inside);
    if (!serial) return std::nullopt;
    return ScannedLiteral{{Literal::Kind::Date, *serial}, inside, end + 1};
}

}  // namespace

qsizetype nameEnd(QStringView sql, qsizetype place) {
    if (place >= sql.size() || !isNameStart(sql[place])) return place;
    while (place < sql.size() && isNamePart(sql[place]))
        ++place;
    return place;
}

bool beginsLiteral(QStringView sql, qsizetype place) {
    const QChar c = sql[place];
    if (c == u'.') return place + 1 < sql.size() && isDigit(sql[place + 1]);
    return c.unicode() < kRoles.size() && (kRoles[c.unicode()] & kLiteralStart) != 0;
}

std::optional<ScannedLiteral> scanLiteral(QStringView sql, qsizetype place) {
    const QChar c = sql[place];
    if (c == u'\'' || c == u'"') return scanText(sql, place);
    if (c == u'#') return scanDate(sql, place);
    return scanNumeral(sql, place);
}

}  // namespace akarix
