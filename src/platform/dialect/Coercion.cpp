#include "platform/dialect/Coercion.h"

#include <algorithm>

#include "platform/cipher/SqlFunctions.h"
#include "platform/dialect/BoundQuery.h"
#include "platform/dialect/ColumnKind.h"
#include "platform/dialect/DialectError.h"
#include "platform/dialect/StoreError.h"

namespace akarix {
namespace {

BoundPtr Converted(Conversion conversion, const BoundPtr& operand, Kind kind) {
    return MakeBound(BoundConversion{conversion, operand}, kind, operand.get());
}

BoundPtr Called(const char* function, const BoundPtr& operand, Kind kind) {
    return MakeBound(BoundCall{&FindFunction(function), {operand}}, kind, operand.get());
}

/// The literal with another use, or nothing when the expression is no literal.
BoundPtr LiteralAs(const BoundPtr& expression, LiteralUse use, Kind kind) {
    const auto* literal = std::get_if<BoundLiteral>(&expression->node);
    if (!literal) return nullptr;
    BoundLiteral changed = *literal;
    changed.use = use;
    return MakeBound(changed, kind, expression.get());
}

/// The same for a literal that is no text: what a text says is found out when the statement runs.
BoundPtr NumberLiteralAs(const BoundPtr& expression, LiteralUse use, Kind kind) {
    const auto* literal = std::get_if<BoundLiteral>(&expression->node);
    if (!literal || literal->literal.kind == Literal::Kind::Text) return nullptr;
    return LiteralAs(expression, use, kind);
}

/// For comparisons: exact, whatever the other side has behind its fourth decimal.
BoundPtr ToScaled(const BoundPtr& expression) {
    if (auto literal = LiteralAs(expression, LiteralUse::CurrencyExact, Kind::Currency)) return literal;
    switch (expression->kind) {
        case Kind::Boolean:
        case Kind::Integer:
            return Converted(Conversion::WholeToCurrency, expression, Kind::Currency);
        case Kind::Double:
        case Kind::Date:
            return Converted(Conversion::RealToScaled, expression, Kind::Currency);
        default:
            return expression;
    }
}

}  // namespace

BoundPtr ToReal(const BoundPtr& expression) {
    if (auto literal = NumberLiteralAs(expression, LiteralUse::Real, Kind::Double)) return literal;
    switch (expression->kind) {
        case Kind::Boolean:
        case Kind::Integer:
            return Converted(Conversion::WholeToReal, expression, Kind::Double);
        case Kind::Currency:
            return Converted(Conversion::CurrencyToReal, expression, Kind::Double);
        case Kind::Text:
            return Called("akarix_text_real", expression, Kind::Double);
        default:
            return expression;
    }
}

BoundPtr ToCurrency(const BoundPtr& expression) {
    if (auto literal = NumberLiteralAs(expression, LiteralUse::CurrencyStored, Kind::Currency))
        return literal;
    switch (expression->kind) {
        case Kind::Boolean:
        case Kind::Integer:
            return Converted(Conversion::WholeToCurrency, expression, Kind::Currency);
        case Kind::Double:
        case Kind::Date:
            return Called("akarix_ccur", expression, Kind::Currency);
        case Kind::Text:
            return Called("akarix_text_currency", expression, Kind::Currency);
        default:
            return expression;
    }
}

BoundPtr ToDate(const BoundPtr& expression) {
    if (auto literal = LiteralAs(expression, LiteralUse::DateAsked, Kind::Date)) return literal;
    if (expression->kind == Kind::Date || expression->kind == Kind::Null) return expression;
    if (expression->kind == Kind::Text) return Called("akarix_text_date", expression, Kind::Date);
    const BoundPtr serial = ToReal(expression);
    return MakeBound(serial->node, Kind::Date, expression.get());
}

BoundPtr ToText(const BoundPtr& expression) {
    if (auto literal = LiteralAs(expression, LiteralUse::TextStored, Kind::Text)) return literal;
    switch (expression->kind) {
        case Kind::Boolean:
        case Kind::Integer:
            return Converted(Conversion::WholeToText, expression, Kind::Text);
        case Kind::Currency:
            return Called("akarix_currency_text", expression, Kind::Text);
        case Kind::Double:
            return Called("akarix_real_text", expression, Kind::Text);
        case Kind::Date:
            return Called("akarix_date_text", expression, Kind::Text);
        default:
            return expression;
    }
}

namespace {

BoundPtr ToWhole(const BoundPtr& expression) {
    switch (expression->kind) {
        case Kind::Currency:
            return Called("akarix_whole_from_currency", expression, Kind::Integer);
        case Kind::Double:
        case Kind::Date:
            return Called("akarix_whole_from_real", expression, Kind::Integer);
        case Kind::Text:
            return Called("akarix_store_whole", expression, Kind::Integer);
        default:
            return expression;
    }
}

BoundPtr AsStored(const BoundPtr& expression, const ColumnDef& column) {
    const Kind kind = KindOf(column.type);
    const Kind given = expression->kind;
    if (given == Kind::Null) return expression;
    const auto literal = [&](LiteralUse use) { return LiteralAs(expression, use, kind); };
    switch (kind) {
        case Kind::Boolean:
            if (auto made = literal(LiteralUse::BooleanStored)) return made;
            if (given == Kind::Boolean || given == Kind::Text) return expression;
            return Converted(Conversion::NumberToBoolean, expression, kind);
        case Kind::Integer:
            if (auto made = literal(LiteralUse::IntegerStored)) return made;
            return ToWhole(expression);
        case Kind::Currency:
            if (auto made = literal(LiteralUse::CurrencyStored)) return made;
            if (given == Kind::Text) return Called("akarix_store_currency", expression, kind);
            if (given == Kind::Double || given == Kind::Date)
                return Called("akarix_currency_from_real", expression, kind);
            return ToCurrency(expression);
        case Kind::Double:
            if (auto made = literal(LiteralUse::Real)) return made;
            return given == Kind::Text ? Called("akarix_store_real", expression, kind) : ToReal(expression);
        case Kind::Date:
            if (auto made = literal(LiteralUse::DateStored)) {
                // CDATE('...') keeps its own demand that the text be a date.
                const auto* own = std::get_if<BoundLiteral>(&expression->node);
                return own->use == LiteralUse::DateAsked ? expression : made;
            }
            return given == Kind::Text ? Called("akarix_store_date", expression, kind) : ToDate(expression);
        case Kind::Text:
            return ToText(expression);
        case Kind::Null:
            break;
    }
    return expression;
}

/// Whether every value comes from a column that holds nothing the other one cannot.
bool ComesFitting(const BoundExpression& expression, const ColumnDef& column) {
    if (column.required) return false;
    if (const auto* place = std::get_if<BoundColumn>(&expression.node)) {
        const ColumnDef& from = place->table->definition->columns[static_cast<std::size_t>(place->column)];
        return from.type == column.type &&
               (column.type != FieldType::Text || TextWidth(from) <= TextWidth(column));
    }
    const auto* aggregate = std::get_if<BoundAggregate>(&expression.node);
    return aggregate && (aggregate->op == AggregateOp::Max || aggregate->op == AggregateOp::First) &&
           ComesFitting(*aggregate->operand, column);
}

}  // namespace

BoundPtr ToColumn(const BoundPtr& expression, const ColumnDef& column) {
    if (expression->kind == Kind::Null) {
        if (column.required) throw StoreError(3314, column.name);
        return expression;
    }
    const BoundPtr value = AsStored(expression, column);
    if (const auto* literal = std::get_if<BoundLiteral>(&value->node)) {
        // What it says is looked at when the statement is given its values, which costs the engine nothing.
        BoundLiteral aimed = *literal;
        aimed.target = &column;
        return MakeBound(aimed, value->kind, value.get());
    }
    if (ComesFitting(*value, column)) return value;
    return MakeBound(BoundCall{&FindFunction("akarix_fit"),
                               {value, MakeWhole(static_cast<int>(column.type)), MakeWhole(column.size),
                                MakeWhole(column.required ? 1 : 0)}},
                     value->kind, value.get());
}

void MakeComparable(const std::vector<BoundPtr*>& expressions) {
    bool text = false;
    bool other = false;
    bool money = false;
    for (const BoundPtr* one : expressions) {
        const Kind kind = (*one)->kind;
        text = text || kind == Kind::Text;
        other = other || (kind != Kind::Text && kind != Kind::Null);
        money = money || kind == Kind::Currency;
        if (text && other) throw KindsDiffer((*one)->position);
    }
    if (!money) return;
    for (BoundPtr* one : expressions)
        *one = ToScaled(*one);
}

}  // namespace akarix
