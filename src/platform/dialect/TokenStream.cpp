#include "platform/dialect/TokenStream.h"

#include <algorithm>

#include "platform/dialect/DialectError.h"
#include "platform/runtime/Literals.h"

namespace akarix {

const Token& TokenStream::peek(std::size_t ahead) const {
    return (*tokens_)[std::min(place_ + ahead, tokens_->size() - 1)];
}

const Token& TokenStream::take() {
    const Token& token = peek();
    if (place_ + 1 < tokens_->size()) ++place_;
    return token;
}

bool TokenStream::atWord(QStringView word) const {
    return peek().type == Token::Type::Word && peek().text.compare(word, Qt::CaseInsensitive) == 0;
}

bool TokenStream::accept(Keyword keyword) {
    if (!at(keyword)) return false;
    take();
    return true;
}

bool TokenStream::accept(QStringView symbol) {
    if (!at(symbol)) return false;
    take();
    return true;
}

bool TokenStream::acceptWord(QStringView word) {
    if (!atWord(word)) return false;
    take();
    return true;
}

void TokenStream::expect(Keyword keyword, QStringView shown) {
    if (!accept(keyword)) fail(u"%1 がありません。"_s.arg(shown));
}

void TokenStream::expect(QStringView symbol) {
    if (!accept(symbol)) fail(u"'%1' がありません。"_s.arg(symbol));
}

void TokenStream::expectWord(QStringView word) {
    if (!acceptWord(word)) fail(u"%1 がありません。"_s.arg(word));
}

bool TokenStream::atName() const {
    return peek().type == Token::Type::Bracketed ||
           (peek().type == Token::Type::Word && peek().keyword == Keyword::None);
}

QString TokenStream::takeName() {
    if (!atName()) fail(u"名前がありません。"_s);
    return take().text.toString();
}

QStringView TokenStream::textFrom(qsizetype position) const {
    const qsizetype end = position < peek().position ? peek().position : sql_.size();
    return sql_.sliced(position, end - position).trimmed();
}

void TokenStream::fail(const QString& what) const {
    throw SyntaxError(sql_, what, position());
}

void TokenStream::failHere() const {
    if (atEnd()) fail(u"式が途中で終わっています。"_s);
    const Token& token = peek();
    const bool operand = token.type == Token::Type::Literal || atName();
    fail(operand ? u"演算子がありません。"_s : u"'%1' はここでは使えません。"_s.arg(token.text));
}

}  // namespace akarix
