#include "platform/dialect/Literal.h"

#include <cmath>

#include "platform/dialect/ColumnKind.h"
#include "platform/dialect/Rounding.h"
#include "platform/dialect/StoreError.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {
namespace {

/// A text literal in a place that wants a number or a date: converted, or left for the check to refuse.
template <class Convert>
StoreValue Converted(const QString& text, Convert convert) {
    try {
        return convert(Variant(text));
    } catch (const RuntimeError&) {
        return text;
    }
}

StoreValue Scaled(std::int64_t whole) {
    std::int64_t product = 0;
    if (__builtin_mul_overflow(whole, Currency::kScale, &product))
        return static_cast<double>(whole) * static_cast<double>(Currency::kScale);
    return product;
}

StoreValue TextOf(const Literal& literal, const StoreValue& value) {
    switch (literal.kind) {
        case Literal::Kind::Integer:
            return QString::number(std::get<std::int64_t>(value));
        case Literal::Kind::Decimal:
            return Currency::FromScaled(std::get<std::int64_t>(value)).ToText();
        case Literal::Kind::Real:
            return CStr(std::get<double>(value));
        case Literal::Kind::Date:
            return CStr(Date(std::get<double>(value)));
        case Literal::Kind::Text:
            break;
    }
    return value;
}

double RealOf(const Literal& literal, const StoreValue& value) {
    if (const auto* whole = std::get_if<std::int64_t>(&value)) {
        const bool decimal = literal.kind == Literal::Kind::Decimal;
        return decimal ? Currency::FromScaled(*whole).ToDouble() : static_cast<double>(*whole);
    }
    return std::get<double>(value);
}

StoreValue TextAs(const QString& text, LiteralUse use) {
    switch (use) {
        case LiteralUse::CurrencyExact:
        case LiteralUse::CurrencyStored:
            return Converted(text, [](const Variant& v) -> StoreValue { return CCur(v).Scaled(); });
        case LiteralUse::IntegerStored:
            return Converted(text, [](const Variant& v) { return WholeFromReal(CDbl(v)); });
        case LiteralUse::Real:
            return Converted(text, [](const Variant& v) -> StoreValue { return CDbl(v); });
        case LiteralUse::DateStored:
            return Converted(text, [](const Variant& v) -> StoreValue { return CDate(v).Serial(); });
        case LiteralUse::DateAsked:
            return CDate(Variant(text)).Serial();
        case LiteralUse::BooleanStored:
            return Converted(
                text, [](const Variant& v) -> StoreValue { return std::int64_t{CDbl(v) != 0 ? -1 : 0}; });
        case LiteralUse::Natural:
        case LiteralUse::TextStored:
            break;
    }
    return text;
}

StoreValue NumberAs(const Literal& literal, const StoreValue& value, LiteralUse use) {
    const bool decimal = literal.kind == Literal::Kind::Decimal;
    const auto* whole = std::get_if<std::int64_t>(&value);
    switch (use) {
        case LiteralUse::Natural:
            if (whole && !decimal) return value;
            break;
        case LiteralUse::CurrencyExact:
            if (whole) return decimal ? value : Scaled(*whole);
            return std::get<double>(value) * static_cast<double>(Currency::kScale);
        case LiteralUse::CurrencyStored:
            if (whole) return decimal ? value : Scaled(*whole);
            return CurrencyFromReal(std::get<double>(value));
        case LiteralUse::IntegerStored:
            if (whole && !decimal) return value;
            if (whole) return WholeFromCurrency(*whole);
            return WholeFromReal(std::get<double>(value));
        case LiteralUse::BooleanStored:
            return std::int64_t{RealOf(literal, value) != 0 ? -1 : 0};
        case LiteralUse::TextStored:
            return TextOf(literal, value);
        case LiteralUse::Real:
        case LiteralUse::DateStored:
        case LiteralUse::DateAsked:
            break;
    }
    return RealOf(literal, value);
}

StoreValue Negative(const StoreValue& value) {
    if (const auto* whole = std::get_if<std::int64_t>(&value)) return -*whole;
    return -std::get<double>(value);
}

}  // namespace

StoreValue LiteralValue(const Literal& literal, bool negated, LiteralUse use) {
    if (literal.kind == Literal::Kind::Text) return TextAs(std::get<QString>(literal.value), use);
    return NumberAs(literal, negated ? Negative(literal.value) : literal.value, use);
}

StoreValue LiteralFor(const ColumnDef* target, const Literal& literal, bool negated, LiteralUse use) {
    StoreValue value = LiteralValue(literal, negated, use);
    if (target) {
        if (const int misfit = MisfitOf(*target, value)) throw StoreError(misfit, target->name);
    }
    return value;
}

}  // namespace akarix
