#include "platform/jet/ExpressionBinder.h"

#include "platform/jet/Coercion.h"
#include "platform/jet/DialectError.h"
#include "platform/jet/FunctionRules.h"
#include "platform/jet/SqlFunctions.h"

namespace akarix {
namespace {

BoundPtr called(const char* function, std::vector<BoundPtr> arguments, Kind kind) {
    return makeBound(BoundCall{&sqlFunction(function), std::move(arguments)}, kind);
}

BoundPtr native(NativeOp op, BoundPtr left, BoundPtr right, Kind kind) {
    return makeBound(BoundArithmetic{op, std::move(left), std::move(right)}, kind);
}

/// A literal such as 1.5, which is money beside money and a double otherwise.
bool isDecimalLiteral(const BoundExpression& expression) {
    const auto* literal = std::get_if<BoundLiteral>(&expression.node);
    return literal && literal->literal.kind == Literal::Kind::Decimal;
}

bool isWhole(Kind kind) {
    return kind == Kind::Integer || kind == Kind::Boolean || kind == Kind::Null;
}

bool bothMoney(const BoundExpression& a, const BoundExpression& b) {
    const auto fits = [](const BoundExpression& one) {
        return one.kind == Kind::Currency || isWhole(one.kind) || isDecimalLiteral(one);
    };
    return (a.kind == Kind::Currency || b.kind == Kind::Currency) && fits(a) && fits(b);
}

/// Texts take part in arithmetic as the numbers they spell.
BoundPtr asOperand(const BoundPtr& expression) {
    return expression->kind == Kind::Text ? toReal(expression) : expression;
}

BoundPtr addOrSubtract(NativeOp op, const BoundPtr& left, const BoundPtr& right) {
    const Kind a = left->kind;
    const Kind b = right->kind;
    if (a == Kind::Date || b == Kind::Date) {
        const bool span = op == NativeOp::Subtract && a == b;
        return native(op, toReal(left), toReal(right), span ? Kind::Double : Kind::Date);
    }
    if (bothMoney(*left, *right)) return native(op, toCurrency(left), toCurrency(right), Kind::Currency);
    if (isWhole(a) && isWhole(b)) return native(op, left, right, Kind::Integer);
    return native(op, toReal(left), toReal(right), Kind::Double);
}

BoundPtr multiply(const BoundPtr& left, const BoundPtr& right) {
    if (isWhole(left->kind) && isWhole(right->kind))
        return native(NativeOp::Multiply, left, right, Kind::Integer);
    if (!bothMoney(*left, *right))
        return native(NativeOp::Multiply, toReal(left), toReal(right), Kind::Double);
    // Money times a whole number keeps its scale.
    if (isWhole(left->kind) || isWhole(right->kind))
        return native(NativeOp::Multiply, left, right, Kind::Currency);
    return called("akarix_mul_currency", {toCurrency(left), toCurrency(right)}, Kind::Currency);
}

BoundPtr describe(const BoundPtr& bound, const ParsedExpression& parsed) {
    auto made = std::make_shared<BoundExpression>(*bound);
    made->text = parsed.text.toString();
    made->position = parsed.position;
    return made;
}

}  // namespace

bool hasAggregate(const BoundExpression& expression) {
    if (std::holds_alternative<BoundAggregate>(expression.node)) return true;
    for (const BoundPtr& operand : operandsOf(expression)) {
        if (hasAggregate(*operand)) return true;
    }
    return false;
}

BoundPtr ExpressionBinder::bind(const ParsedExpression& parsed) {
    return describe(bindNode(parsed), parsed);
}

BoundPtr ExpressionBinder::bindNode(const ParsedExpression& parsed) {
    struct Visitor {
        ExpressionBinder& self;
        const ParsedExpression& whole;

        BoundPtr operator()(const ParsedName& n) const { return self.name(whole, n); }
        BoundPtr operator()(const ParsedLiteral& n) const { return self.literal(n); }
        BoundPtr operator()(const ParsedNull&) const { return makeBound(BoundNull{}, Kind::Null); }
        BoundPtr operator()(const ParsedBoolean& n) const {
            return makeBound(BoundBoolean{n.value}, Kind::Boolean);
        }
        BoundPtr operator()(const ParsedNegation& n) const { return self.negation(n); }
        BoundPtr operator()(const ParsedNot& n) const {
            return makeBound(BoundNot{self.bind(*n.operand)}, Kind::Boolean);
        }
        BoundPtr operator()(const ParsedArithmetic& n) const { return self.arithmetic(n); }
        BoundPtr operator()(const ParsedComparison& n) const { return self.comparison(n); }
        BoundPtr operator()(const ParsedLogic& n) const {
            return makeBound(BoundLogic{n.op, self.bind(*n.left), self.bind(*n.right)}, Kind::Boolean);
        }
        BoundPtr operator()(const ParsedIsNull& n) const {
            return makeBound(BoundIsNull{self.bind(*n.operand), n.negated}, Kind::Boolean);
        }
        BoundPtr operator()(const ParsedLike& n) const { return self.like(n); }
        BoundPtr operator()(const ParsedBetween& n) const { return self.between(n); }
        BoundPtr operator()(const ParsedInList& n) const { return self.inList(n); }
        BoundPtr operator()(const ParsedInQuery& n) const { return self.inQuery(n); }
        BoundPtr operator()(const ParsedExists& n) const {
            return makeBound(BoundExists{self.query(*n.query)}, Kind::Boolean);
        }
        BoundPtr operator()(const ParsedScalarQuery& n) const {
            auto inner = self.query(*n.query);
            const auto& items = inner->members.front().items;
            if (items.size() != 1) {
                throw dialectError(
                    3306, QStringLiteral("サブクエリは 1 つのフィールドだけを返さなければなりません。"));
            }
            const Kind kind = items.front().expression->kind;
            return makeBound(BoundScalarQuery{std::move(inner)}, kind);
        }
        BoundPtr operator()(const ParsedCall& n) const { return self.call(whole, n); }
    };
    return std::visit(Visitor{*this, parsed}, parsed.node);
}

BoundPtr ExpressionBinder::name(const ParsedExpression& parsed, const ParsedName& node) {
    if (BoundPtr column = scope_.column(node, parsed.position)) return column;
    if (results_ && node.table.isEmpty()) {
        if (BoundPtr result = scope_.result(node.column)) return result;
    }
    throw unknownName(parsed.text.toString(), parsed.position);
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
    return makeBound(BoundLiteral{node.literal, node.lifted, node.negated}, kind);
}

BoundPtr ExpressionBinder::negation(const ParsedNegation& node) {
    const BoundPtr operand = asOperand(bind(*node.operand));
    const Kind kind = operand->kind == Kind::Boolean ? Kind::Integer : operand->kind;
    return makeBound(BoundNegation{operand}, kind);
}

BoundPtr ExpressionBinder::arithmetic(const ParsedArithmetic& node) {
    BoundPtr left = bind(*node.left);
    BoundPtr right = bind(*node.right);
    if (node.op == ArithmeticOp::Concat)
        return called("akarix_concat", {toText(left), toText(right)}, Kind::Text);
    if (node.op == ArithmeticOp::Add && left->kind == Kind::Text && right->kind == Kind::Text) {
        return native(NativeOp::Join, left, right, Kind::Text);
    }
    left = asOperand(left);
    right = asOperand(right);
    switch (node.op) {
        case ArithmeticOp::Add:
            return addOrSubtract(NativeOp::Add, left, right);
        case ArithmeticOp::Subtract:
            return addOrSubtract(NativeOp::Subtract, left, right);
        case ArithmeticOp::Multiply:
            return multiply(left, right);
        case ArithmeticOp::Divide:
            return called("akarix_divide", {toReal(left), toReal(right)}, Kind::Double);
        case ArithmeticOp::IntegerDivide:
            return called("akarix_whole_divide", {toWhole(left), toWhole(right)}, Kind::Integer);
        case ArithmeticOp::Modulo:
            return called("akarix_modulo", {toWhole(left), toWhole(right)}, Kind::Integer);
        case ArithmeticOp::Power:
            return called("akarix_power", {toReal(left), toReal(right)}, Kind::Double);
        case ArithmeticOp::Concat:
            break;
    }
    return left;
}

BoundPtr ExpressionBinder::comparison(const ParsedComparison& node) {
    BoundPtr left = bind(*node.left);
    BoundPtr right = bind(*node.right);
    makeComparable({&left, &right});
    return makeBound(BoundComparison{node.op, left, right}, Kind::Boolean);
}

BoundPtr ExpressionBinder::like(const ParsedLike& node) {
    return makeBound(BoundLike{toText(bind(*node.operand)), toText(bind(*node.pattern)), node.negated},
                     Kind::Boolean);
}

BoundPtr ExpressionBinder::between(const ParsedBetween& node) {
    BoundPtr operand = bind(*node.operand);
    BoundPtr low = bind(*node.low);
    BoundPtr high = bind(*node.high);
    makeComparable({&operand, &low, &high});
    BoundPtr inside = called("akarix_between", {operand, low, high}, Kind::Boolean);
    return node.negated ? makeBound(BoundNot{std::move(inside)}, Kind::Boolean) : inside;
}

BoundPtr ExpressionBinder::inList(const ParsedInList& node) {
    BoundInList bound{bind(*node.operand), {}, node.negated};
    for (const ParsedPtr& item : node.items)
        bound.items.push_back(bind(*item));
    std::vector<BoundPtr*> all{&bound.operand};
    for (BoundPtr& item : bound.items)
        all.push_back(&item);
    makeComparable(all);
    return makeBound(std::move(bound), Kind::Boolean);
}

BoundPtr ExpressionBinder::inQuery(const ParsedInQuery& node) {
    BoundPtr operand = bind(*node.operand);
    const std::shared_ptr<BoundQuery> bound = query(*node.query);
    for (BoundSelect& member : bound->members) {
        if (member.items.size() != 1) {
            throw dialectError(3306,
                               QStringLiteral("サブクエリは 1 つのフィールドだけを返さなければなりません。"));
        }
        makeComparable({&operand, &member.items.front().expression});
    }
    return makeBound(BoundInQuery{std::move(operand), bound, node.negated}, Kind::Boolean);
}

BoundPtr ExpressionBinder::call(const ParsedExpression& parsed, const ParsedCall& node) {
    if (const auto op = aggregateNamed(node.name)) return aggregate(parsed, node, *op);
    if (node.star) throw unknownFunction(node.name, parsed.position);
    std::vector<BoundPtr> arguments;
    for (const ParsedPtr& argument : node.arguments)
        arguments.push_back(bind(*argument));
    return bindFunction(node.name, std::move(arguments), parsed.position);
}

BoundPtr ExpressionBinder::aggregate(const ParsedExpression& parsed, const ParsedCall& node, AggregateOp op) {
    const QString shown = parsed.text.toString();
    if (!aggregates_) {
        throw dialectError(3096, QStringLiteral("集計関数 '%1' はここでは使えません。(%2 文字目)")
                                     .arg(shown)
                                     .arg(parsed.position + 1));
    }
    if (node.star && op == AggregateOp::Count) return makeBound(BoundAggregate{op, nullptr}, Kind::Integer);
    if (node.star || node.arguments.size() != 1) {
        throw dialectError(3075, QStringLiteral("クエリ式 '%1' で関数の引数の数が一致しません。(%2 文字目)")
                                     .arg(shown)
                                     .arg(parsed.position + 1));
    }
    aggregates_ = false;  // none inside another
    const BoundPtr operand = bind(*node.arguments.front());
    aggregates_ = true;
    const auto made = [&](AggregateOp which, const BoundPtr& of, Kind kind) {
        return makeBound(BoundAggregate{which, of}, kind, of.get());
    };
    switch (op) {
        case AggregateOp::Count:
            return made(op, operand, Kind::Integer);
        case AggregateOp::Sum:
            if (operand->kind == Kind::Currency) return made(op, operand, Kind::Currency);
            // Whole numbers are summed as such, exactly, and only the result becomes a double.
            if (isWhole(operand->kind)) return toReal(made(op, operand, Kind::Integer));
            return made(op, toReal(operand), Kind::Double);
        case AggregateOp::Average:
            if (operand->kind != Kind::Currency) return made(op, toReal(operand), Kind::Double);
            return called("akarix_average_currency",
                          {made(AggregateOp::Sum, operand, Kind::Currency),
                           made(AggregateOp::Count, operand, Kind::Integer)},
                          Kind::Currency);
        default:
            break;
    }
    auto kept = std::make_shared<BoundExpression>(*operand);  // Min, Max, First, Last keep kind and width
    kept->node = BoundAggregate{op, operand};
    return kept;
}

std::shared_ptr<BoundQuery> ExpressionBinder::query(const ParsedQuery& parsed) {
    if (!bindQuery_) throw dialectError(3075, QStringLiteral("サブクエリはここでは使えません。"));
    return bindQuery_(parsed, scope_);
}

}  // namespace akarix
