#include "platform/dao/Conversion.h"

#include <cmath>
#include <limits>

#include "platform/dialect/ColumnValue.h"
#include "platform/dialect/StoreError.h"
#include "platform/runtime/Conversion.h"

namespace akarix {
namespace {

double AsDouble(const StoreValue& value) {
    const auto* whole = std::get_if<std::int64_t>(&value);
    return whole ? static_cast<double>(*whole) : std::get<double>(value);
}

// An expression may leave the range of the kind it was given; the value then goes out in the next wider one.
template <class Narrow>
Variant WholeVariant(const StoreValue& value) {
    const auto* whole = std::get_if<std::int64_t>(&value);
    if (whole && *whole == static_cast<Narrow>(*whole)) return static_cast<Narrow>(*whole);
    const double number = AsDouble(value);
    if (number != std::floor(number) || number < std::numeric_limits<std::int32_t>::min() ||
        number > std::numeric_limits<std::int32_t>::max())
        return number;
    if (number < std::numeric_limits<Narrow>::min() || number > std::numeric_limits<Narrow>::max())
        return static_cast<std::int32_t>(number);
    return static_cast<Narrow>(number);
}

/// A value of the run time by its kind in the store.
std::pair<Kind, StoreValue> StoreForm(const Variant& value) {
    switch (value.Type()) {
        case VarType::Boolean:
        case VarType::Byte:
        case VarType::Integer:
        case VarType::Long:
            return {Kind::Integer, std::int64_t{CLng(value)}};
        case VarType::Currency:
            return {Kind::Currency, value.As<Currency>().Scaled()};
        case VarType::Single:
        case VarType::Double:
            return {Kind::Double, CDbl(value)};
        case VarType::Date:
            return {Kind::Date, value.As<Date>().Serial()};
        case VarType::String:
            return {Kind::Text, value.As<QString>()};
        case VarType::Empty:
        case VarType::Null:
            break;
    }
    return {Kind::Null, StoreValue()};
}

}  // namespace

Variant VariantOf(FieldType type, const StoreValue& value) {
    if (std::holds_alternative<std::monostate>(value)) return Variant::Null();
    if (const auto* text = std::get_if<QString>(&value)) return *text;
    switch (type) {
        case FieldType::Boolean:
            return AsDouble(value) != 0;
        case FieldType::Byte:
            return WholeVariant<std::uint8_t>(value);
        case FieldType::Integer:
            return WholeVariant<std::int16_t>(value);
        case FieldType::Long:
            return WholeVariant<std::int32_t>(value);
        case FieldType::Currency:
            if (const auto* scaled = std::get_if<std::int64_t>(&value)) return Currency::FromScaled(*scaled);
            return CCur(AsDouble(value) / static_cast<double>(Currency::kScale));
        case FieldType::Single:
            return static_cast<float>(AsDouble(value));
        case FieldType::Date:
            return Date(AsDouble(value));
        case FieldType::Text:
        case FieldType::Memo:
            return CStr(AsDouble(value));
        case FieldType::Double:
            break;
    }
    return AsDouble(value);
}

StoreValue StoredAs(const ColumnDef& column, const Variant& value) {
    const auto [kind, given] = StoreForm(value);
    if (kind == Kind::Null) return std::monostate{};
    try {
        return FittedTo(column, kind, given);
    } catch (const RuntimeError& error) {
        constexpr int kOutOfRange = 6;
        if (error.number() != kOutOfRange) throw;
        throw StoreError(3421, column.name);
    }
}

}  // namespace akarix
