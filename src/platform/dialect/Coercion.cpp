#include "platform/dialect/Coercion.h"

#include "platform/dialect/DialectError.h"
#include "platform/dialect/StoreError.h"

namespace akarix {
namespace {

/// The literal with its place changed, or nothing when the expression is no literal.
template <class Change>
BoundPtr Placed(const BoundPtr& expression, Kind kind, Change change) {
    if (!expression->as<BoundLiteral>()) return nullptr;
    auto made = std::make_shared<BoundExpression>(*expression);
    change(std::get<BoundLiteral>(made->node).place);
    made->kind = kind;
    made->type = TypeOf(kind);
    return made;
}

BoundPtr InForm(const BoundPtr& expression, Form form, Kind kind) {
    if (expression->kind == Kind::Null) return expression;
    BoundPtr literal = Placed(expression, kind, [form](LiteralPlace& place) { place.form = form; });
    return literal ? literal : MakeBound(BoundConversion{form}, kind, {expression});
}

/// Whether every value comes from a column that holds nothing the other one cannot.
bool ComesFitting(const BoundExpression& expression, const ColumnDef& column) {
    if (column.required) return false;
    if (const auto* place = expression.as<BoundColumn>()) {
        const ColumnDef& from = place->definition();
        return from.type == column.type &&
               (column.type != FieldType::Text || TextWidth(from) <= TextWidth(column));
    }
    const auto* aggregate = expression.as<Aggregate>();
    return aggregate && (*aggregate == Aggregate::Max || *aggregate == Aggregate::First) &&
           ComesFitting(*expression.operands.front(), column);
}

}  // namespace

BoundPtr ToReal(const BoundPtr& expression) {
    const Kind kind = expression->kind;
    const bool isReal = kind == Kind::Date || (kind == Kind::Double && !expression->as<BoundLiteral>());
    return isReal ? expression : InForm(expression, Form::Real, Kind::Double);
}

BoundPtr ToScaled(const BoundPtr& expression) {
    return expression->kind == Kind::Currency ? expression : InForm(expression, Form::Scaled, Kind::Currency);
}

BoundPtr ToDate(const BoundPtr& expression) {
    if (expression->kind == Kind::Date) return expression;
    if (!expression->as<BoundLiteral>() && expression->kind != Kind::Null)
        throw KindsDiffer(expression->position);
    return InForm(expression, Form::Date, Kind::Date);
}

BoundPtr ToColumn(const BoundPtr& expression, const ColumnDef& column) {
    if (expression->kind == Kind::Null) {
        if (column.required) throw StoreError(3314, column.name);
        return expression;
    }
    // What a literal says is looked at when the statement is given its values, which costs the engine
    // nothing.
    if (BoundPtr literal =
            Placed(expression, KindOf(column.type), [&](LiteralPlace& place) { place.target = &column; }))
        return literal;
    if (ComesFitting(*expression, column)) return expression;
    return MakeBound(BoundFit{&column}, KindOf(column.type), {expression});
}

void MakeComparable(BoundPtr& left, BoundPtr& right) {
    const Kind a = left->kind;
    const Kind b = right->kind;
    if (a == Kind::Null || b == Kind::Null) return;
    if ((a == Kind::Text) != (b == Kind::Text)) throw KindsDiffer(right->position);
    if (a != Kind::Currency && b != Kind::Currency) return;
    left = ToScaled(left);
    right = ToScaled(right);
}

}  // namespace akarix
