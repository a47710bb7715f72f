#include "platform/jet/Literal.h"

#include <cmath>

#include "platform/jet/ColumnKind.h"
#include "platform/jet/Rounding.h"
#include "platform/jet/StoreError.h"
#include "platform/runtime/CCur.h"
#include "platform/runtime/CDate.h"
#include "platform/runtime/CDbl.h"
#include "platform/runtime/CStr.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {
namespace {

/// A text literal in a place that wants a number or a date: converted, or left for the check to refuse.
template <class Convert>
StoreValue converted(const QString& text, Convert convert) {
    try {
        return convert(Variant(text));
    } catch (const RuntimeError&) {
        return text;
    }
}

StoreValue scaled(std::int64_t whole) {
    std::int64_t product = 0;
    if (__builtin_mul_overflow(whole, Currency::kScale, &product)) {
        return static_cast<double>(whole) * static_cast<double>(Currency::kScale);
    }
    return product;
}

StoreValue textOf(const Literal& literal, const StoreValue& value) {
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

double realOf(const Literal& literal, const StoreValue& value) {
    if (const auto* whole = std::get_if<std::int64_t>(&value)) {
        const bool decimal = literal.kind == Literal::Kind::Decimal;
        return decimal ? Currency::FromScaled(*whole).ToDouble() : static_cast<double>(*whole);
    }
    return std::get<double>(value);
}

StoreValue textAs(const QString& text, LiteralUse use) {
    switch (use) {
        case LiteralUse::CurrencyExact:
        case LiteralUse::CurrencyStored:
            return converted(text, [](const Variant& v) -> StoreValue { return CCur(v).Scaled(); });
        case LiteralUse::IntegerStored:
            return converted(text, [](const Variant& v) { return wholeFromReal(CDbl(v)); });
        case LiteralUse::Real:
            return converted(text, [](const Variant& v) -> StoreValue { return CDbl(v); });
        case LiteralUse::DateStored:
            return converted(text, [](const Variant& v) -> StoreValue { return CDate(v).Serial(); });
        case LiteralUse::DateAsked:
            return CDate(Variant(text)).Serial();
        case LiteralUse::BooleanStored:
            return converted(
                text, [](const Variant& v) -> StoreValue { return std::int64_t{CDbl(v) != 0 ? -1 : 0}; });
        case LiteralUse::Natural:
        case LiteralUse::TextStored:
            break;
    }
    return text;
}

StoreValue numberAs(const Literal& literal, const StoreValue& value, LiteralUse use) {
    const bool decimal = literal.kind == Literal::Kind::Decimal;
    const auto* whole = std::get_if<std::int64_t>(&value);
    switch (use) {
        case LiteralUse::Natural:
            if (whole && !decimal) return value;
            break;
        case LiteralUse::CurrencyExact:
            if (whole) return decimal ? value : scaled(*whole);
            return std::get<double>(value) * static_cast<double>(Currency::kScale);
        case LiteralUse::CurrencyStored:
            if (whole) return decimal ? value : scaled(*whole);
            return currencyFromReal(std::get<double>(value));
        case LiteralUse::IntegerStored:
            if (whole && !decimal) return value;
            if (whole) return wholeFromCurrency(*whole);
            return wholeFromReal(std::get<double>(value));
        case LiteralUse::BooleanStored:
            return std::int64_t{realOf(literal, value) != 0 ? -1 : 0};
        case LiteralUse::TextStored:
            return textOf(literal, value);
        case LiteralUse::Real:
        case LiteralUse::DateStored:
        case LiteralUse::DateAsked:
            break;
    }
    return realOf(literal, value);
}

StoreValue negative(const StoreValue& value) {
    if (const auto* whole = std::get_if<std::int64_t>(&value)) return -*whole;
    return -std::get<double>(value);
}

}  // namespace

StoreValue literalValue(const Literal& literal, bool negated, LiteralUse use) {
    if (literal.kind == Literal::Kind::Text) return textAs(std::get<QString>(literal.value), use);
    return numberAs(literal, negated ? negative(literal.value) : literal.value, use);
}

StoreValue literalFor(const ColumnDef* target, const Literal& literal, bool negated, LiteralUse use) {
    StoreValue value = literalValue(literal, negated, use);
    if (target) {
        if (const int misfit = MisfitOf(*target, value)) throw StoreError(misfit, target->name);
    }
    return value;
}

}  // namespace akarix
