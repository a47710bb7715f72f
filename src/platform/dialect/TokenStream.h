#pragma once

#include <vector>

#include "platform/dialect/Token.h"

namespace akarix {

/// The tokens of a statement and the place a parser has come to.
class TokenStream {
 public:
    TokenStream(QStringView sql, const std::vector<Token>& tokens) : sql_(sql), tokens_(&tokens) {}

    const Token& peek(std::size_t ahead = 0) const;
    const Token& take();

    bool at(Keyword keyword) const { return peek().type == Token::Type::Word && peek().keyword == keyword; }
    bool at(QStringView symbol) const { return isSymbol(peek(), symbol); }
    /// A word that has a meaning at this place alone, such as TOP.
    bool atWord(QStringView word) const;
    bool accept(Keyword keyword);
    bool accept(QStringView symbol);
    bool acceptWord(QStringView word);
    void expect(Keyword keyword, QStringView shown);
    void expect(QStringView symbol);
    void expectWord(QStringView word);

    bool atName() const;
    QString takeName();

    bool atEnd() const { return peek().type == Token::Type::End; }
    qsizetype position() const { return peek().position; }
    /// The statement from a position to the end of the last token taken.
    QStringView textFrom(qsizetype position) const;

    static bool isSymbol(const Token& token, QStringView symbol) {
        return token.type == Token::Type::Symbol && token.text == symbol;
    }
    [[noreturn]] void fail(const QString& what) const;
    /// Something stands where nothing of its kind may stand.
    [[noreturn]] void failHere() const;

 private:
    QStringView sql_;
    const std::vector<Token>* tokens_;
    std::size_t place_ = 0;
};

}  // namespace akarix
