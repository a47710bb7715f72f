#include "platform/dialect/Nesting.h"
#include "platform/dialect/Parser.h"
#include "platform/runtime/Literals.h"

namespace akarix {

ParsedQuery Parser::query() {
    in_.expect(Keyword::Select, u"SELECT");
    ParsedQuery read;
    read.top = top();
    do {
        read.items.push_back(item());
    } while (in_.accept(u","));
    if (in_.accept(Keyword::From)) {
        read.source = source();
        if (in_.accept(Keyword::Where)) read.where = expression();
    }
    if (in_.accept(Keyword::Group)) {
        in_.expect(Keyword::By, u"BY");
        read.groups = expressions();
    }
    if (in_.accept(Keyword::Order)) {
        in_.expect(Keyword::By, u"BY");
        do {
            ParsedOrder term;
            term.expression = expression();
            term.descending = in_.accept(Keyword::Desc);
            if (!term.descending) in_.accept(Keyword::Asc);
            read.order.push_back(std::move(term));
        } while (in_.accept(u","));
    }
    return read;
}

std::optional<std::int64_t> Parser::top() {
    // TOP is a word like any other unless a number follows.
    if (!in_.atWord(u"TOP") || in_.peek(1).type != Token::Type::Literal) return std::nullopt;
    in_.take();
    const Literal& count = in_.peek().literal;
    if (count.kind != Literal::Kind::Integer) in_.fail(u"TOP の数が正しくありません。"_s);
    in_.take();
    return std::get<std::int64_t>(count.value);
}

ParsedItem Parser::item() {
    ParsedItem read;
    if (in_.accept(u"*")) return read;
    if (in_.atName() && TokenStream::isSymbol(in_.peek(1), u".") &&
        TokenStream::isSymbol(in_.peek(2), u"*")) {
        read.starTable = in_.takeName();
        in_.take();
        in_.take();
        return read;
    }
    read.expression = expression();
    if (in_.accept(Keyword::As)) read.alias = in_.takeName();
    return read;
}

ParsedSource Parser::source() {
    const Nesting nesting(nesting_);
    ParsedSource read;
    if (in_.accept(u"(")) {
        read = source();
        in_.expect(u")");
    } else {
        read.first = in_.takeName();
    }
    while (in_.at(Keyword::Inner) || in_.at(Keyword::Left)) {
        if (read.joins.size() >= Nesting::kMost) throw TooComplex();
        ParsedJoin join;
        join.outer = in_.take().keyword == Keyword::Left;
        in_.expect(Keyword::Join, u"JOIN");
        join.table = in_.takeName();
        in_.expect(Keyword::On, u"ON");
        join.on = expression();
        read.joins.push_back(std::move(join));
    }
    return read;
}

}  // namespace akarix
