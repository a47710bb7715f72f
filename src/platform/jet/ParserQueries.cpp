#include "platform/jet/Nesting.h"
#include "platform/jet/Parser.h"

namespace akarix {

std::unique_ptr<ParsedQuery> Parser::query() {
    const Nesting nesting(nesting_);
    auto read = std::make_unique<ParsedQuery>();
    for (;;) {
        const bool enclosed = in_.accept(u"(");
        read->members.push_back(select());
        if (enclosed) in_.expect(u")");
        if (!in_.accept(Keyword::Union)) break;
        read->all.push_back(in_.accept(Keyword::All));
    }
    if (in_.accept(Keyword::Order)) {
        in_.expect(Keyword::By, u"BY");
        do {
            ParsedOrder term;
            term.expression = expression();
            term.descending = in_.accept(Keyword::Desc);
            if (!term.descending) in_.accept(Keyword::Asc);
            read->order.push_back(std::move(term));
        } while (in_.accept(u","));
    }
    return read;
}

ParsedSelect Parser::select() {
    in_.expect(Keyword::Select, u"SELECT");
    ParsedSelect read;
    quantifiers(read);
    do {
        read.items.push_back(item());
    } while (in_.accept(u","));
    if (in_.accept(Keyword::From)) read.sources = sources();
    if (in_.accept(Keyword::Where)) read.where = expression();
    if (in_.accept(Keyword::Group)) {
        in_.expect(Keyword::By, u"BY");
        read.groups = expressions();
    }
    if (in_.accept(Keyword::Having)) read.having = expression();
    return read;
}

void Parser::quantifiers(ParsedSelect& select) {
    for (;;) {
        if (in_.accept(Keyword::Distinct)) {
            select.distinct = true;
        } else if (in_.accept(Keyword::DistinctRow)) {
            select.distinctRow = true;
        } else if (in_.accept(Keyword::All)) {
        } else if (auto limit = top()) {
            select.top = limit;
        } else {
            return;
        }
    }
}

std::optional<ParsedTop> Parser::top() {
    // TOP is a word like any other unless a number follows.
    if (!in_.atWord(u"TOP") || in_.peek(1).type != Token::Type::Literal) return std::nullopt;
    in_.take();
    const Literal& count = in_.peek().literal;
    if (count.kind != Literal::Kind::Integer) in_.fail(QStringLiteral("TOP の数が正しくありません。"));
    ParsedTop read;
    read.count = std::get<std::int64_t>(count.value);
    in_.take();
    read.percent = in_.acceptWord(u"PERCENT");
    if (read.percent && read.count > 100) in_.fail(QStringLiteral("TOP の数が正しくありません。"));
    return read;
}

ParsedItem Parser::item() {
    ParsedItem read;
    read.position = in_.position();
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

std::vector<ParsedSource> Parser::sources() {
    std::vector<ParsedSource> all;
    do {
        all.push_back(source());
    } while (in_.accept(u","));
    return all;
}

ParsedSource Parser::source() {
    const Nesting nesting(nesting_);
    ParsedSource left = singleSource();
    int joins = 0;
    while (const auto op = joinOp()) {
        if (++joins > Nesting::kMost) throw tooComplex();
        ParsedJoin join{*op, std::make_unique<ParsedSource>(std::move(left)), nullptr, nullptr};
        join.right = std::make_unique<ParsedSource>(singleSource());
        in_.expect(Keyword::On, u"ON");
        join.on = expression();
        left = ParsedSource{std::move(join)};
    }
    return left;
}

std::optional<JoinOp> Parser::joinOp() {
    std::optional<JoinOp> op;
    if (in_.accept(Keyword::Inner)) {
        op = JoinOp::Inner;
    } else if (in_.accept(Keyword::Left)) {
        op = JoinOp::Left;
        in_.accept(Keyword::Outer);
    } else if (in_.accept(Keyword::Right)) {
        op = JoinOp::Right;
        in_.accept(Keyword::Outer);
    } else if (in_.at(Keyword::Join)) {
        op = JoinOp::Inner;
    }
    if (op) in_.expect(Keyword::Join, u"JOIN");
    return op;
}

ParsedSource Parser::singleSource() {
    const Nesting nesting(nesting_);
    if (in_.accept(u"(")) {
        if (in_.at(Keyword::Select)) {
            ParsedDerived derived;
            derived.query = query();
            in_.expect(u")");
            derived.alias = alias();
            if (derived.alias.isEmpty()) in_.fail(QStringLiteral("サブクエリの別名がありません。"));
            return ParsedSource{std::move(derived)};
        }
        ParsedSource inner = source();
        in_.expect(u")");
        return inner;
    }
    ParsedTable table;
    table.position = in_.position();
    table.name = in_.takeName();
    table.alias = alias();
    return ParsedSource{std::move(table)};
}

QString Parser::alias() {
    if (in_.accept(Keyword::As)) return in_.takeName();
    return in_.atName() ? in_.takeName() : QString();
}

}  // namespace akarix
