#include "platform/jet/Lexer.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/jet/DateLiteral.h"
#include "platform/jet/DialectError.h"

namespace akarix {
namespace {

// In the order of the enumeration, which is that of the alphabet: the search is binary.
constexpr std::array<std::u16string_view, 40> kKeywords = {
    u"",       u"ALL",      u"AND",         u"AS",     u"ASC",    u"BETWEEN", u"BY",    u"DELETE",
    u"DESC",   u"DISTINCT", u"DISTINCTROW", u"EXISTS", u"FALSE",  u"FROM",    u"GROUP", u"HAVING",
    u"IN",     u"INNER",    u"INSERT",      u"INTO",   u"IS",     u"JOIN",    u"LEFT",  u"LIKE",
    u"MOD",    u"NOT",      u"NULL",        u"ON",     u"OR",     u"ORDER",   u"OUTER", u"RIGHT",
    u"SELECT", u"SET",      u"TRUE",        u"UNION",  u"UPDATE", u"VALUES",  u"WHERE", u"XOR",
};
static_assert(static_cast<std::size_t>(Keyword::Xor) + 1 == kKeywords.size());

Keyword keywordOf(QStringView word) {
    std::array<char16_t, 11> upper;
    const auto length = static_cast<std::size_t>(word.size());
    if (length < 2 || length > upper.size()) return Keyword::None;
    for (std::size_t i = 0; i < length; ++i) {
        char16_t c = word[static_cast<qsizetype>(i)].unicode();
        if (c >= u'a' && c <= u'z') c = static_cast<char16_t>(c - u'a' + u'A');
        if (c < u'A' || c > u'Z') return Keyword::None;
        upper[i] = c;
    }
    const std::u16string_view wanted(upper.data(), length);
    const auto* const found = std::lower_bound(kKeywords.begin(), kKeywords.end(), wanted);
    if (found == kKeywords.end() || *found != wanted) return Keyword::None;
    return static_cast<Keyword>(found - kKeywords.begin());
}

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool isAsciiLetter(QChar c) {
    const char16_t lower = c.unicode() | 0x20;
    return lower >= u'a' && lower <= u'z';
}

bool isNameStart(QChar c) {
    if (c.unicode() < 0x80) return isAsciiLetter(c) || c == u'_';
    return c.isLetter() || c.isSurrogate();
}

bool isNamePart(QChar c) {
    if (c.unicode() < 0x80) return isAsciiLetter(c) || isDigit(c) || c == u'_' || c == u'$';
    return isNameStart(c) || c.isDigit() || c.isMark();
}

Literal readNumber(QStringView text) {
    const qsizetype point = text.indexOf(u'.');
    const bool exponent = text.contains(u'e') || text.contains(u'E');
    QStringView whole = point < 0 ? text : text.first(point);
    QStringView fraction = point < 0 ? QStringView() : text.sliced(point + 1);
    if (!exponent && point < 0 && whole.size() <= 18) {
        return {Literal::Kind::Integer, static_cast<std::int64_t>(whole.toLongLong())};
    }
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

class Lexer {
 public:
    explicit Lexer(QStringView sql) : sql_(sql) {}

    std::vector<Token> run() {
        std::vector<Token> tokens;
        tokens.reserve(static_cast<std::size_t>(sql_.size() / 5 + 8));
        do {
            tokens.push_back(next());
        } while (tokens.back().type != Token::Type::End);
        return tokens;
    }

 private:
    QChar at(qsizetype i) const { return i < sql_.size() ? sql_[i] : QChar(); }

    Token next() {
        while (place_ < sql_.size() && sql_[place_].isSpace())
            ++place_;
        Token token;
        token.position = place_;
        if (place_ >= sql_.size()) return token;
        const QChar c = sql_[place_];
        if (isNameStart(c)) {
            readWord(token);
        } else if (isDigit(c) || (c == u'.' && isDigit(at(place_ + 1)))) {
            readNumeral(token);
        } else if (c == u'\'' || c == u'"') {
            readText(token, c);
        } else if (c == u'#') {
            readDate(token);
        } else if (c == u'[') {
            readBracketed(token);
        } else {
            readSymbol(token);
        }
        return token;
    }

    void readWord(Token& token) {
        const qsizetype from = place_;
        while (place_ < sql_.size() && isNamePart(sql_[place_]))
            ++place_;
        token.type = Token::Type::Word;
        token.text = sql_.sliced(from, place_ - from);
        token.keyword = keywordOf(token.text);
    }

    void readNumeral(Token& token) {
        const qsizetype from = place_;
        while (isDigit(at(place_)))
            ++place_;
        if (at(place_) == u'.') ++place_;
        while (isDigit(at(place_)))
            ++place_;
        if (at(place_).toUpper() == u'E') {
            qsizetype ahead = place_ + 1;
            if (at(ahead) == u'+' || at(ahead) == u'-') ++ahead;
            if (isDigit(at(ahead))) {
                place_ = ahead;
                while (isDigit(at(place_)))
                    ++place_;
            }
        }
        token.type = Token::Type::Literal;
        token.text = sql_.sliced(from, place_ - from);
        token.literal = readNumber(token.text);
    }

    void readText(Token& token, QChar quote) {
        const qsizetype from = ++place_;
        bool doubled = false;
        for (;; ++place_) {
            if (place_ >= sql_.size()) {
                throw syntaxError(sql_, QStringLiteral("文字列が閉じていません。"), token.position);
            }
            if (sql_[place_] != quote) continue;
            if (at(place_ + 1) != quote) break;
            doubled = true;
            ++place_;
        }
        token.type = Token::Type::Literal;
        token.text = sql_.sliced(from, place_ - from);
        QString value = token.text.toString();
        if (doubled) value.replace(QString(2, quote), QString(quote));
        token.literal = {Literal::Kind::Text, value};
        ++place_;
    }

    void readDate(Token& token) {
        const qsizetype end = sql_.indexOf(u'#', place_ + 1);
        const auto serial =
            end < 0 ? std::nullopt : parseDateLiteral(sql_.sliced(place_ + 1, end - place_ - 1));
        if (!serial) throw syntaxError(sql_, QStringLiteral("日付が正しくありません。"), token.position);
        token.type = Token::Type::Literal;
        token.text = sql_.sliced(place_ + 1, end - place_ - 1);
        token.literal = {Literal::Kind::Date, *serial};
        place_ = end + 1;
    }

    void readBracketed(Token& token) {
        const qsizetype end = sql_.indexOf(u']', place_);
        if (end <= place_ + 1)
            throw syntaxError(sql_, QStringLiteral("角かっこの名前が正しくありません。"), place_);
        token.type = Token::Type::Bracketed;
        token.text = sql_.sliced(place_ + 1, end - place_ - 1);
        place_ = end + 1;
    }

    void readSymbol(Token& token) {
        const QChar c = sql_[place_];
        const QChar behind = at(place_ + 1);
        const bool pair = (c == u'<' && (behind == u'>' || behind == u'=')) || (c == u'>' && behind == u'=');
        if (!pair && !QStringView(u"()=<>+-*/\\^&,.;").contains(c)) {
            throw syntaxError(sql_, QStringLiteral("文字 '%1' は使えません。").arg(c), place_);
        }
        token.type = Token::Type::Symbol;
        token.text = sql_.sliced(place_, pair ? 2 : 1);
        place_ += pair ? 2 : 1;
    }

    QStringView sql_;
    qsizetype place_ = 0;
};

}  // namespace

std::vector<Token> tokenize(QStringView sql) {
    return Lexer(sql).run();
}

}  // namespace akarix
