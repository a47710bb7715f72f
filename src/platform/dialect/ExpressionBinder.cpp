#include "platform/dialect/ExpressionBinder.h"

#include <algorithm>
#include <array>

#include "platform/dialect/Coercion.h"
#include "platform/dialect/DialectError.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

/// A literal such as 1.5, which is money beside money and a double otherwise.
bool IsDecimalLiteral(const BoundExpression& expression) {
    const auto* literal = expression.as<BoundLiteral>();
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

void RequireNumber(const BoundPtr& expression) {
    if (expression->kind == Kind::Text) throw KindsDiffer(expression->position);
}

BoundPtr Arithmetic(Operator op, const BoundPtr& left, const BoundPtr& right) {
    const auto made = [op](Kind kind, const BoundPtr& a, const BoundPtr& b) {
        return MakeBound(op, kind, {a, b});
    };
    const Kind a = left->kind;
    const Kind b = right->kind;
    const bool sum = op == Operator::Add || op == Operator::Subtract;
    if (sum && (a == Kind::Date || b == Kind::Date)) {
        const bool span = op == Operator::Subtract && a == b;
        return made(span ? Kind::Double : Kind::Date, ToReal(left), ToReal(right));
    }
    if (op != Operator::Divide && IsWhole(a) && IsWhole(b)) return made(Kind::Integer, left, right);
    if (op == Operator::Divide || !BothMoney(*left, *right))
        return made(Kind::Double, ToReal(left), ToReal(right));
    // Money times a whole number keeps its scale.
    if (!sum && (IsWhole(a) || IsWhole(b))) return made(Kind::Currency, left, right);
    return made(Kind::Currency, ToScaled(left), ToScaled(right));
}

struct AggregateName {
    QStringView name;
    Aggregate which;
};

constexpr std::array kAggregates = {
    AggregateName{u"COUNT", Aggregate::Count},
    AggregateName{u"SUM", Aggregate::Sum},
    AggregateName{u"MAX", Aggregate::Max},
    AggregateName{u"FIRST", Aggregate::First},
};

Kind KindOf(Literal::Kind kind) {
    switch (kind) {
        case Literal::Kind::Integer:
            return Kind::Integer;
        case Literal::Kind::Text:
            return Kind::Text;
        case Literal::Kind::Date:
            return Kind::Date;
        default:
            return Kind::Double;
    }
}

}  // namespace

BoundPtr ExpressionBinder::bind(const ParsedExpression& parsed) {
    auto made = std::make_shared<BoundExpression>(*bound(parsed));
    made->text = parsed.text.toString();
    made->position = parsed.position;
    return made;
}

BoundPtr ExpressionBinder::bound(const ParsedExpression& parsed) {
    if (const auto* name = std::get_if<ParsedName>(&parsed.node)) {
        if (BoundPtr column = scope_.column(*name, parsed.position)) return column;
        throw UnknownName(parsed.text.toString(), parsed.position);
    }
    if (const auto* literal = std::get_if<ParsedLiteral>(&parsed.node)) {
        return MakeBound(BoundLiteral{literal->literal, {literal->number, literal->negated}},
                         KindOf(literal->literal.kind));
    }
    if (const auto* op = std::get_if<Operator>(&parsed.node)) return operation(*op, parsed);
    if (const auto* called = std::get_if<ParsedCall>(&parsed.node)) return call(parsed, *called);
    return MakeBound(BoundNull{}, Kind::Null);
}

BoundPtr ExpressionBinder::operation(Operator op, const ParsedExpression& parsed) {
    std::vector<BoundPtr> operands;
    for (const ParsedPtr& operand : parsed.operands)
        operands.push_back(bind(*operand));
    if (op == Operator::Like) {
        for (const BoundPtr& operand : operands)
            if (operand->kind != Kind::Text && operand->kind != Kind::Null)
                throw KindsDiffer(operand->position);
    } else if (op >= Operator::Equal && op <= Operator::GreaterEqual) {
        MakeComparable(operands[0], operands[1]);
    } else if (!IsTest(op)) {
        std::for_each(operands.begin(), operands.end(), RequireNumber);
        if (op != Operator::Negate) return Arithmetic(op, operands[0], operands[1]);
        const Kind kind = operands[0]->kind;
        return MakeBound(op, kind == Kind::Boolean ? Kind::Integer : kind, std::move(operands));
    }
    return MakeBound(op, Kind::Boolean, std::move(operands));
}

BoundPtr ExpressionBinder::call(const ParsedExpression& parsed, const ParsedCall& node) {
    const auto named = [&](QStringView name) { return node.name.compare(name, Qt::CaseInsensitive) == 0; };
    const auto* const aggregating = std::find_if(kAggregates.begin(), kAggregates.end(),
                                                 [&](const AggregateName& one) { return named(one.name); });
    const bool isAggregate = aggregating != kAggregates.end();
    if (!isAggregate && !named(u"CDATE")) throw UnknownFunction(node.name, parsed.position);
    if (isAggregate && !aggregates_) {
        throw RuntimeError(
            3096,
            u"集計関数 '%1' はここでは使えません。(%2 文字目)"_s.arg(parsed.text).arg(parsed.position + 1));
    }
    if (node.star && isAggregate && aggregating->which == Aggregate::Count)
        return MakeBound(Aggregate::Count, Kind::Integer);
    if (node.star || parsed.operands.size() != 1) {
        throw RuntimeError(3075,
                           u"クエリ式 '%1' で関数の引数の数が一致しません。(%2 文字目)"_s.arg(parsed.text)
                               .arg(parsed.position + 1));
    }
    const ParsedExpression& argument = *parsed.operands.front();
    return isAggregate ? aggregate(argument, aggregating->which) : ToDate(bind(argument));
}

BoundPtr ExpressionBinder::aggregate(const ParsedExpression& argument, Aggregate which) {
    aggregates_ = false;  // none inside another
    BoundPtr operand = bind(argument);
    aggregates_ = true;
    if (which == Aggregate::Count) return MakeBound(which, Kind::Integer, {operand});
    if (which == Aggregate::Sum) {
        RequireNumber(operand);
        if (operand->kind == Kind::Currency) return MakeBound(which, Kind::Currency, {operand});
        // Whole numbers are summed as such, exactly, and only the result becomes a double.
        if (IsWhole(operand->kind)) return ToReal(MakeBound(which, Kind::Integer, {operand}));
        return MakeBound(which, Kind::Double, {ToReal(operand)});
    }
    auto kept = std::make_shared<BoundExpression>(*operand);  // Max and First keep kind and width
    kept->node = which;
    kept->operands = {std::move(operand)};
    return kept;
}

}  // namespace akarix
