#include "platform/dialect/Literal.h"

#include "platform/runtime/Conversion.h"
#include "platform/runtime/Currency.h"

namespace akarix {
namespace {

/// The kind of a literal's value as it is kept.
Kind KindOf(const Literal& literal) {
    switch (literal.kind) {
        case Literal::Kind::Integer:
            return Kind::Integer;
        case Literal::Kind::Decimal:
            return Kind::Currency;
        case Literal::Kind::Real:
            return Kind::Double;
        case Literal::Kind::Text:
            return Kind::Text;
        case Literal::Kind::Date:
            return Kind::Date;
    }
    return Kind::Null;
}

StoreValue Negative(const StoreValue& value) {
    if (const auto* whole = std::get_if<std::int64_t>(&value)) return -*whole;
    return -std::get<double>(value);
}

StoreValue InForm(Form form, Kind kind, const StoreValue& value) {
    if (const auto* text = std::get_if<QString>(&value))
        return form == Form::Date ? StoreValue(CDate(*text).Serial()) : value;
    const auto* whole = std::get_if<std::int64_t>(&value);
    if (form == Form::Natural && kind == Kind::Integer) return value;
    if (form == Form::Scaled) {
        if (whole) return kind == Kind::Currency ? value : ScaledWhole(*whole);
        return std::get<double>(value) * static_cast<double>(Currency::kScale);
    }
    return RealOf(kind, value);
}

}  // namespace

StoreValue ValueAt(const LiteralPlace& place, const Literal& literal) {
    const StoreValue value = place.negated ? Negative(literal.value) : literal.value;
    const bool asDate = place.form == Form::Date;
    if (!place.target) return InForm(place.form, KindOf(literal), value);
    return FittedTo(*place.target, asDate ? Kind::Date : KindOf(literal),
                    asDate ? InForm(Form::Date, KindOf(literal), value) : value);
}

}  // namespace akarix
