#include <algorithm>

#include "platform/dialect/Nesting.h"
#include "platform/dialect/Parser.h"

namespace akarix {
namespace {

struct Symbol {
    QStringView text;
    Operator op;
};

constexpr Symbol kComparisons[] = {
    {u"=", Operator::Equal},      {u"<>", Operator::NotEqual}, {u"<", Operator::Less},
    {u"<=", Operator::LessEqual}, {u">", Operator::Greater},   {u">=", Operator::GreaterEqual},
};
constexpr Symbol kSums[] = {{u"+", Operator::Add}, {u"-", Operator::Subtract}};
constexpr Symbol kProducts[] = {{u"*", Operator::Multiply}, {u"/", Operator::Divide}};

template <std::size_t N>
std::optional<Operator> Accepted(TokenStream& in, const Symbol (&symbols)[N]) {
    for (const Symbol& symbol : symbols)
        if (in.accept(symbol.text)) return symbol.op;
    return std::nullopt;
}

}  // namespace

ParsedPtr Parser::make(decltype(ParsedExpression::node) node, qsizetype position,
                       std::vector<ParsedPtr> operands) {
    auto made = std::make_unique<ParsedExpression>();
    for (const ParsedPtr& operand : operands)
        made->depth = std::max(made->depth, operand->depth + 1);
    if (made->depth > Nesting::kMostLevels) throw TooComplex();
    made->node = std::move(node);
    made->operands = std::move(operands);
    made->position = position;
    made->text = in_.textFrom(position);
    return made;
}

ParsedPtr Parser::make(Operator op, qsizetype position, ParsedPtr left, ParsedPtr right) {
    std::vector<ParsedPtr> operands;
    operands.push_back(std::move(left));
    if (right) operands.push_back(std::move(right));
    return make(op, position, std::move(operands));
}

ParsedPtr Parser::expression() {
    const Nesting nesting(nesting_);
    return chain(Level::Or);
}

ParsedPtr Parser::chain(Level level) {
    const qsizetype position = in_.position();
    ParsedPtr left = operand(level);
    while (const auto op = acceptOperator(level)) {
        ParsedPtr right = operand(level);
        left = make(*op, position, std::move(left), std::move(right));
    }
    return left;
}

ParsedPtr Parser::operand(Level level) {
    switch (level) {
        case Level::Or:
            return chain(Level::And);
        case Level::And:
            return negated();
        case Level::Comparison:
            return chain(Level::Sum);
        case Level::Sum:
            return chain(Level::Product);
        case Level::Product:
            break;
    }
    return signedValue();
}

std::optional<Operator> Parser::acceptOperator(Level level) {
    switch (level) {
        case Level::Or:
            return in_.accept(Keyword::Or) ? std::optional(Operator::Or) : std::nullopt;
        case Level::And:
            return in_.accept(Keyword::And) ? std::optional(Operator::And) : std::nullopt;
        case Level::Comparison:
            return Accepted(in_, kComparisons);
        case Level::Sum:
            return Accepted(in_, kSums);
        case Level::Product:
            break;
    }
    return Accepted(in_, kProducts);
}

ParsedPtr Parser::negated() {
    const Nesting nesting(nesting_);
    const qsizetype position = in_.position();
    if (!in_.accept(Keyword::Not)) return comparison();
    ParsedPtr operand = negated();
    return make(Operator::Not, position, std::move(operand));
}

ParsedPtr Parser::comparison() {
    const qsizetype position = in_.position();
    ParsedPtr left = chain(Level::Comparison);
    for (;;) {
        bool negative = false;
        if (in_.accept(Keyword::Is)) {
            negative = in_.accept(Keyword::Not);
            in_.expect(Keyword::Null, u"NULL");
            left = make(Operator::IsNull, position, std::move(left));
        } else {
            negative = in_.accept(Keyword::Not);
            if (!in_.accept(Keyword::Like)) {
                if (negative) in_.failHere();
                return left;
            }
            ParsedPtr pattern = chain(Level::Sum);
            left = make(Operator::Like, position, std::move(left), std::move(pattern));
        }
        if (negative) left = make(Operator::Not, position, std::move(left));
    }
}

std::vector<ParsedPtr> Parser::expressions() {
    std::vector<ParsedPtr> all;
    do {
        all.push_back(expression());
    } while (in_.accept(u","));
    return all;
}

ParsedPtr Parser::signedValue() {
    const Nesting nesting(nesting_);
    const qsizetype position = in_.position();
    if (in_.accept(u"+")) return signedValue();
    if (!in_.accept(u"-")) return primary();
    ParsedPtr operand = signedValue();
    auto* literal = std::get_if<ParsedLiteral>(&operand->node);
    if (!literal || literal->literal.kind == Literal::Kind::Text)
        return make(Operator::Negate, position, std::move(operand));
    literal->negated = !literal->negated;
    operand->text = in_.textFrom(position);
    return operand;
}

ParsedPtr Parser::primary() {
    const Nesting nesting(nesting_);
    const Token& token = in_.peek();
    if (token.type == Token::Type::Literal) {
        in_.take();
        return make(ParsedLiteral{token.literal, token.number}, token.position);
    }
    if (token.type == Token::Type::Word && token.keyword == Keyword::None &&
        TokenStream::isSymbol(in_.peek(1), u"("))
        return call();
    if (in_.atName()) {
        ParsedName read = name();
        return make(std::move(read), token.position);
    }
    if (in_.accept(u"(")) {
        ParsedPtr inner = expression();
        in_.expect(u")");
        return inner;
    }
    if (in_.accept(Keyword::Null)) return make(ParsedNull{}, token.position);
    in_.failHere();
}

ParsedName Parser::name() {
    ParsedName read;
    read.column = in_.takeName();
    if (in_.accept(u".")) {
        read.table = std::move(read.column);
        read.column = in_.takeName();
    }
    return read;
}

ParsedPtr Parser::call() {
    const qsizetype position = in_.position();
    ParsedCall read;
    read.name = in_.take().text.toString();
    in_.expect(u"(");
    std::vector<ParsedPtr> arguments;
    if (in_.accept(u"*"))
        read.star = true;
    else if (!in_.at(u")"))
        arguments = expressions();
    in_.expect(u")");
    return make(std::move(read), position, std::move(arguments));
}

}  // namespace akarix
