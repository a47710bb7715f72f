#include "platform/dialect/ExpressionBinder.h"

#include <algorithm>
#include <array>

#include "platform/cipher/SqlFunctions.h"
#include "platform/dialect/Coercion.h"
#include "platform/dialect/DialectError.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

BoundPtr Called(const char* function, std::vector<BoundPtr> arguments, Kind kind) {
    return MakeBound(BoundCall{&FindFunction(function), std::move(arguments)}, kind);
}

BoundPtr Native(NativeOp op, BoundPtr left, BoundPtr right, Kind kind) {
    return MakeBound(BoundArithmetic{op, std::move(left), std::move(right)}, kind);
}

/// A literal such as 1.5, which is money beside money and a double otherwise.
bool IsDecimalLiteral(const BoundExpression& expression) {
    const auto* literal = std::get_if<BoundLiteral>(&expression.node);
    return literal && literal->literal.kind == Literal::Kind::Decimal;
}

bool IsWhole(Kind kind) {
    return kind == Kind::Integer || kind == Kind::Boolean || kind == Kind::Null;
}

bool BothMoney(const BoundExpression& a, const BoundExpression& b) {
    const auto fits = [](const BoundExpression& one) {
        return one.kind == Kind::Currency || IsWhole(one.kind) || IsDecimalLiteral(one);
    };
    return (a.kind == Kind::Currency || b.kind == Kind::Currency) && fits(a) && fits(b);
}

/// Texts take part in arithmetic as the numbers they spell.
BoundPtr AsOperand(const BoundPtr& expression) {
    return expression->kind == Kind::Text ? ToReal(expression) : expression;
}

BoundPtr AddOrSubtract(NativeOp op, const BoundPtr& left, const BoundPtr& right) {
    const Kind a = left->kind;
    const Kind b = right->kind;
    if (a == Kind::Date || b == Kind::Date) {
        const bool span = op == NativeOp::Subtract && a == b;
        return Native(op, ToReal(left), ToReal(right), span ? Kind::Double : Kind::Date);
    }
    if (BothMoney(*left, *right)) return Native(op, ToCurrency(left), ToCurrency(right), Kind::Currency);
    if (IsWhole(a) && IsWhole(b)) return Native(op, left, right, Kind::Integer);
    return Native(op, ToReal(left), ToReal(right), Kind::Double);
}

BoundPtr Multiply(const BoundPtr& left, const BoundPtr& right) {
    if (IsWhole(left->kind) && IsWhole(right->kind))
        return Native(NativeOp::Multiply, left, right, Kind::Integer);
    if (!BothMoney(*left, *right))
        return Native(NativeOp::Multiply, ToReal(left), ToReal(right), Kind::Double);
    // Money times a whole number keeps its scale.
    if (IsWhole(left->kind) || IsWhole(right->kind))
        return Native(NativeOp::Multiply, left, right, Kind::Currency);
    return Called("akarix_mul_currency", {ToCurrency(left), ToCurrency(right)}, Kind::Currency);
}

struct AggregateName {
    QStringView name;
    AggregateOp op;
};

constexpr std::array kAggregates = {
    AggregateName{u"COUNT", AggregateOp::Count},
    AggregateName{u"SUM", AggregateOp::Sum},
    AggregateName{u"MAX", AggregateOp::Max},
    AggregateName{u"FIRST", AggregateOp::First},
};

BoundPtr Describe(const BoundPtr& bound, const ParsedExpression& parsed) {
    auto made = std::make_shared<BoundExpression>(*bound);
    made->text = parsed.text.toString();
    made->position = parsed.position;
    return made;
}

}  // namespace

bool HasAggregate(const BoundExpression& expression) {
    if (std::holds_alternative<BoundAggregate>(expression.node)) return true;
    for (const BoundPtr& operand : OperandsOf(expression))
        if (HasAggregate(*operand)) return true;
    return false;
}

BoundPtr ExpressionBinder::bind(const ParsedExpression& parsed) {
    return Describe(bindNode(parsed), parsed);
}

BoundPtr ExpressionBinder::bindNode(const ParsedExpression& parsed) {
    struct Visitor {
        ExpressionBinder& self;
        const ParsedExpression& whole;

        BoundPtr operator()(const ParsedName& n) const { return self.name(whole, n); }
        BoundPtr operator()(const ParsedLiteral& n) const { return self.literal(n); }
        BoundPtr operator()(const ParsedNull&) const { return MakeBound(BoundNull{}, Kind::Null); }
        BoundPtr operator()(const ParsedNegation& n) const { return self.negation(n); }
        BoundPtr operator()(const ParsedNot& n) const {
            return MakeBound(BoundNot{self.bind(*n.operand)}, Kind::Boolean);
        }
        BoundPtr operator()(const ParsedArithmetic& n) const { return self.arithmetic(n); }
        BoundPtr operator()(const ParsedComparison& n) const { return self.comparison(n); }
        BoundPtr operator()(const ParsedLogic& n) const {
            return MakeBound(BoundLogic{n.op, self.bind(*n.left), self.bind(*n.right)}, Kind::Boolean);
        }
        BoundPtr operator()(const ParsedIsNull& n) const {
            return MakeBound(BoundIsNull{self.bind(*n.operand), n.negated}, Kind::Boolean);
        }
        BoundPtr operator()(const ParsedLike& n) const { return self.like(n); }
        BoundPtr operator()(const ParsedCall& n) const { return self.call(whole, n); }
    };
    return std::visit(Visitor{*this, parsed}, parsed.node);
}

BoundPtr ExpressionBinder::name(const ParsedExpression& parsed, const ParsedName& node) {
    if (BoundPtr column = scope_.column(node, parsed.position)) return column;
    throw UnknownName(parsed.text.toString(), parsed.position);
}

BoundPtr ExpressionBinder::literal(const ParsedLiteral& node) {
    Kind kind = Kind::Double;
    switch (node.literal.kind) {
        case Literal::Kind::Integer:
            kind = Kind::Integer;
            break;
        case Literal::Kind::Decimal:
        case Literal::Kind::Real:
            kind = Kind::Double;
            break;
        case Literal::Kind::Text:
            kind = Kind::Text;
            break;
        case Literal::Kind::Date:
            kind = Kind::Date;
            break;
    }
    return MakeBound(BoundLiteral{node.literal, node.lifted, node.negated}, kind);
}

BoundPtr ExpressionBinder::negation(const ParsedNegation& node) {
    const BoundPtr operand = AsOperand(bind(*node.operand));
    const Kind kind = operand->kind == Kind::Boolean ? Kind::Integer : operand->kind;
    return MakeBound(BoundNegation{operand}, kind);
}

BoundPtr ExpressionBinder::arithmetic(const ParsedArithmetic& node) {
    const BoundPtr left = AsOperand(bind(*node.left));
    const BoundPtr right = AsOperand(bind(*node.right));
    switch (node.op) {
        case ArithmeticOp::Add:
            return AddOrSubtract(NativeOp::Add, left, right);
        case ArithmeticOp::Subtract:
            return AddOrSubtract(NativeOp::Subtract, left, right);
        case ArithmeticOp::Multiply:
            return Multiply(left, right);
        case ArithmeticOp::Divide:
            return Called("akarix_divide", {ToReal(left), ToReal(right)}, Kind::Double);
    }
    return left;
}

BoundPtr ExpressionBinder::comparison(const ParsedComparison& node) {
    BoundPtr left = bind(*node.left);
    BoundPtr right = bind(*node.right);
    MakeComparable({&left, &right});
    return MakeBound(BoundComparison{node.op, left, right}, Kind::Boolean);
}

BoundPtr ExpressionBinder::like(const ParsedLike& node) {
    return MakeBound(BoundLike{ToText(bind(*node.operand)), ToText(bind(*node.pattern)), node.negated},
                     Kind::Boolean);
}

BoundPtr ExpressionBinder::call(const ParsedExpression& parsed, const ParsedCall& node) {
    const auto named = [&](QStringView name) { return node.name.compare(name, Qt::CaseInsensitive) == 0; };
    const auto* const aggregating = std::find_if(kAggregates.begin(), kAggregates.end(),
                                                 [&](const AggregateName& one) { return named(one.name); });
    const bool isAggregate = aggregating != kAggregates.end();
    if (!isAggregate && !named(u"CDATE")) throw UnknownFunction(node.name, parsed.position);
    if (isAggregate && !aggregates_) {
        throw DialectError(
            3096,
            u"集計関数 '%1' はここでは使えません。(%2 文字目)"_s.arg(parsed.text).arg(parsed.position + 1));
    }
    if (node.star && isAggregate && aggregating->op == AggregateOp::Count)
        return MakeBound(BoundAggregate{AggregateOp::Count, nullptr}, Kind::Integer);
    if (node.star || node.arguments.size() != 1) {
        throw DialectError(3075,
                           u"クエリ式 '%1' で関数の引数の数が一致しません。(%2 文字目)"_s.arg(parsed.text)
                               .arg(parsed.position + 1));
    }
    const ParsedExpression& argument = *node.arguments.front();
    return isAggregate ? aggregate(argument, aggregating->op) : ToDate(bind(argument));
}

BoundPtr ExpressionBinder::aggregate(const ParsedExpression& argument, AggregateOp op) {
    aggregates_ = false;  // none inside another
    const BoundPtr operand = bind(argument);
    aggregates_ = true;
    const auto made = [&](AggregateOp which, const BoundPtr& of, Kind kind) {
        return MakeBound(BoundAggregate{which, of}, kind, of.get());
    };
    switch (op) {
        case AggregateOp::Count:
            return made(op, operand, Kind::Integer);
        case AggregateOp::Sum:
            if (operand->kind == Kind::Currency) return made(op, operand, Kind::Currency);
            // Whole numbers are summed as such, exactly, and only the result becomes a double.
            if (IsWhole(operand->kind)) return ToReal(made(op, operand, Kind::Integer));
            return made(op, ToReal(operand), Kind::Double);
        default:
            break;
    }
    auto kept = std::make_shared<BoundExpression>(*operand);  // Max and First keep kind and width
    kept->node = BoundAggregate{op, operand};
    return kept;
}

}  // namespace akarix
