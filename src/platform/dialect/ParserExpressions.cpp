#include <algorithm>
#include <array>

#include "platform/dialect/Nesting.h"
#include "platform/dialect/Parser.h"

namespace akarix {
namespace {

int DepthOf(const ParsedPtr& a) {
    return a->depth + 1;
}

int DepthOf(const ParsedPtr& a, const ParsedPtr& b) {
    return std::max(a->depth, b->depth) + 1;
}

int DepthOf(const std::vector<ParsedPtr>& all) {
    int most = 0;
    for (const ParsedPtr& one : all)
        most = std::max(most, one->depth);
    return most + 1;
}

struct CompareSymbol {
    QStringView symbol;
    CompareOp op;
};

const std::array<CompareSymbol, 6> kCompareSymbols = {{{u"=", CompareOp::Equal},
                                                       {u"<>", CompareOp::NotEqual},
                                                       {u"<", CompareOp::Less},
                                                       {u"<=", CompareOp::LessEqual},
                                                       {u">", CompareOp::Greater},
                                                       {u">=", CompareOp::GreaterEqual}}};

}  // namespace

ParsedPtr Parser::make(ParsedNode node, qsizetype position, int depth) {
    if (depth > Nesting::kMostLevels) throw TooComplex();
    auto made = std::make_unique<ParsedExpression>(std::move(node), position);
    made->depth = depth;
    made->text = in_.textFrom(position);
    return made;
}

ParsedPtr Parser::expression() {
    const Nesting nesting(nesting_);
    const qsizetype position = in_.position();
    ParsedPtr left = conjunction();
    while (in_.accept(Keyword::Or)) {
        ParsedPtr right = conjunction();
        const int depth = DepthOf(left, right);
        left = make(ParsedLogic{LogicOp::Or, std::move(left), std::move(right)}, position, depth);
    }
    return left;
}

ParsedPtr Parser::conjunction() {
    const qsizetype position = in_.position();
    ParsedPtr left = negated();
    while (in_.accept(Keyword::And)) {
        ParsedPtr right = negated();
        const int depth = DepthOf(left, right);
        left = make(ParsedLogic{LogicOp::And, std::move(left), std::move(right)}, position, depth);
    }
    return left;
}

ParsedPtr Parser::negated() {
    const Nesting nesting(nesting_);
    const qsizetype position = in_.position();
    if (!in_.accept(Keyword::Not)) return comparison();
    ParsedPtr operand = negated();
    const int depth = DepthOf(operand);
    return make(ParsedNot{std::move(operand)}, position, depth);
}

ParsedPtr Parser::comparison() {
    const qsizetype position = in_.position();
    ParsedPtr left = sum();
    for (;;) {
        const auto symbol = std::find_if(kCompareSymbols.begin(), kCompareSymbols.end(),
                                         [&](const CompareSymbol& one) { return in_.at(one.symbol); });
        if (symbol != kCompareSymbols.end()) {
            in_.take();
            ParsedPtr right = sum();
            const int depth = DepthOf(left, right);
            left = make(ParsedComparison{symbol->op, std::move(left), std::move(right)}, position, depth);
        } else if (in_.at(Keyword::Is) || in_.at(Keyword::Like) || in_.at(Keyword::Not)) {
            left = predicate(std::move(left));
        } else {
            return left;
        }
    }
}

ParsedPtr Parser::predicate(ParsedPtr operand) {
    if (in_.at(Keyword::Is)) return isNull(std::move(operand));
    const bool negatedForm = in_.accept(Keyword::Not);
    if (in_.at(Keyword::Like)) return like(std::move(operand), negatedForm);
    in_.failHere();
}

ParsedPtr Parser::isNull(ParsedPtr operand) {
    in_.take();
    const bool negatedForm = in_.accept(Keyword::Not);
    in_.expect(Keyword::Null, u"NULL");
    const qsizetype position = operand->position;
    const int depth = DepthOf(operand);
    return make(ParsedIsNull{std::move(operand), negatedForm}, position, depth);
}

ParsedPtr Parser::like(ParsedPtr operand, bool negatedForm) {
    in_.take();
    ParsedPtr pattern = sum();
    const qsizetype position = operand->position;
    const int depth = DepthOf(operand, pattern);
    return make(ParsedLike{std::move(operand), std::move(pattern), negatedForm}, position, depth);
}

std::vector<ParsedPtr> Parser::expressions() {
    std::vector<ParsedPtr> all;
    do {
        all.push_back(expression());
    } while (in_.accept(u","));
    return all;
}

ParsedPtr Parser::sum() {
    const qsizetype position = in_.position();
    ParsedPtr left = product();
    while (in_.at(u"+") || in_.at(u"-")) {
        const ArithmeticOp op = in_.take().text == u"+" ? ArithmeticOp::Add : ArithmeticOp::Subtract;
        ParsedPtr right = product();
        const int depth = DepthOf(left, right);
        left = make(ParsedArithmetic{op, std::move(left), std::move(right)}, position, depth);
    }
    return left;
}

ParsedPtr Parser::product() {
    const qsizetype position = in_.position();
    ParsedPtr left = signedValue();
    while (in_.at(u"*") || in_.at(u"/")) {
        const ArithmeticOp op = in_.take().text == u"*" ? ArithmeticOp::Multiply : ArithmeticOp::Divide;
        ParsedPtr right = signedValue();
        const int depth = DepthOf(left, right);
        left = make(ParsedArithmetic{op, std::move(left), std::move(right)}, position, depth);
    }
    return left;
}

ParsedPtr Parser::signedValue() {
    const Nesting nesting(nesting_);
    const qsizetype position = in_.position();
    if (in_.accept(u"+")) return signedValue();
    if (!in_.accept(u"-")) return primary();
    ParsedPtr operand = signedValue();
    if (auto* literal = std::get_if<ParsedLiteral>(&operand->node)) {
        if (literal->literal.kind != Literal::Kind::Text) {
            literal->negated = !literal->negated;
            operand->text = in_.textFrom(position);
            return operand;
        }
    }
    const int depth = DepthOf(operand);
    return make(ParsedNegation{std::move(operand)}, position, depth);
}

ParsedPtr Parser::primary() {
    const Nesting nesting(nesting_);
    const Token& token = in_.peek();
    if (token.type == Token::Type::Literal) {
        in_.take();
        return make(ParsedLiteral{token.literal, token.lifted, false}, token.position, 1);
    }
    if (token.type == Token::Type::Word && token.keyword == Keyword::None &&
        TokenStream::isSymbol(in_.peek(1), u"("))
        return call();
    if (in_.atName()) return name();
    if (in_.accept(u"(")) {
        ParsedPtr inner = expression();
        in_.expect(u")");
        return inner;
    }
    if (in_.accept(Keyword::Null)) return make(ParsedNull{}, token.position, 1);
    in_.failHere();
}

ParsedPtr Parser::name() {
    const qsizetype position = in_.position();
    ParsedName read;
    read.column = in_.takeName();
    if (in_.accept(u".")) {
        read.table = std::move(read.column);
        read.column = in_.takeName();
    }
    return make(std::move(read), position, 1);
}

ParsedPtr Parser::call() {
    const qsizetype position = in_.position();
    ParsedCall read;
    read.name = in_.take().text.toString();
    in_.expect(u"(");
    if (in_.accept(u"*"))
        read.star = true;
    else if (!in_.at(u")"))
        read.arguments = expressions();
    in_.expect(u")");
    const int depth = DepthOf(read.arguments);
    return make(std::move(read), position, depth);
}

}  // namespace akarix
