#include "platform/dialect/Lexer.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/dialect/DialectError.h"
#include "platform/dialect/Scanning.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

// In the order of the enumeration, which is that of the alphabet: the search is binary.
constexpr std::array<std::u16string_view, 26> kKeywords = {
    u"",      u"AND",    u"AS",    u"ASC",    u"BY",   u"DELETE", u"DESC",   u"FROM",  u"GROUP",
    u"INNER", u"INSERT", u"INTO",  u"IS",     u"JOIN", u"LEFT",   u"LIKE",   u"NOT",   u"NULL",
    u"ON",    u"OR",     u"ORDER", u"SELECT", u"SET",  u"UPDATE", u"VALUES", u"WHERE",
};
static_assert(static_cast<std::size_t>(Keyword::Where) + 1 == kKeywords.size());

Keyword KeywordOf(QStringView word) {
    std::array<char16_t, 6> upper;
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
        if (const qsizetype end = NameEnd(sql_, place_); end > place_)
            readWord(token, end);
        else if (BeginsLiteral(sql_, place_))
            readLiteral(token);
        else if (sql_[place_] == u'[')
            readBracketed(token);
        else
            readSymbol(token);
        return token;
    }

    void readWord(Token& token, qsizetype end) {
        token.type = Token::Type::Word;
        token.text = sql_.sliced(place_, end - place_);
        token.keyword = KeywordOf(token.text);
        place_ = end;
    }

    void readLiteral(Token& token) {
        std::optional<ScannedLiteral> scanned = ScanLiteral(sql_, place_);
        if (!scanned) {
            throw SyntaxError(
                sql_, sql_[place_] == u'#' ? u"日付が正しくありません。"_s : u"文字列が閉じていません。"_s,
                place_);
        }
        token.type = Token::Type::Literal;
        token.text = scanned->inside;
        token.literal = std::move(scanned->literal);
        place_ = scanned->end;
    }

    void readBracketed(Token& token) {
        const qsizetype end = sql_.indexOf(u']', place_);
        if (end <= place_ + 1) throw SyntaxError(sql_, u"角かっこの名前が正しくありません。"_s, place_);
        token.type = Token::Type::Bracketed;
        token.text = sql_.sliced(place_ + 1, end - place_ - 1);
        place_ = end + 1;
    }

    void readSymbol(Token& token) {
        const QChar c = sql_[place_];
        const QChar behind = at(place_ + 1);
        const bool pair = (c == u'<' && (behind == u'>' || behind == u'=')) || (c == u'>' && behind == u'=');
        if (!pair && !QStringView(u"()=<>+-*/&,.;").contains(c))
            throw SyntaxError(sql_, u"文字 '%1' は使えません。"_s.arg(c), place_);
        token.type = Token::Type::Symbol;
        token.text = sql_.sliced(place_, pair ? 2 : 1);
        place_ += pair ? 2 : 1;
    }

    QStringView sql_;
    qsizetype place_ = 0;
};

}  // namespace

std::vector<Token> Tokenize(QStringView sql) {
    return Lexer(sql).run();
}

}  // namespace akarix
