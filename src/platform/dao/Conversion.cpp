#include "platform/dao/Conversion.h"

#include <cmath>
#include <limits>

#include "platform/dialect/ColumnKind.h"
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

StoreValue StoredText(const ColumnDef& column, const Variant& value) {
    StoreValue text = CStr(value);
    if (const int misfit = MisfitOf(column, text)) throw StoreError(misfit, column.name);
    return text;
}

StoreValue StoredNumber(FieldType type, const Variant& value) {
    switch (type) {
        case FieldType::Boolean:
            return std::int64_t{CBool(value) ? -1 : 0};
        case FieldType::Byte:
        case FieldType::Integer:
            return std::int64_t{CInt(value)};
        case FieldType::Long:
            return std::int64_t{CLng(value)};
        case FieldType::Currency:
            return std::int64_t{CCur(value).Scaled()};
        case FieldType::Date:
            return CDate(value).Serial();
        case FieldType::Single:
            return static_cast<double>(static_cast<float>(CDbl(value)));
        default:
            return CDbl(value);
    }
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
    if (value.IsNull() || value.IsEmpty()) return std::monostate{};
    if (column.type == FieldType::Text || column.type == FieldType::Memo) return StoredText(column, value);
    StoreValue stored;
    try {
        stored = StoredNumber(column.type, value);
    } catch (const RuntimeError&) {
        throw StoreError(3421, column.name);
    }
    if (!Fits(column, stored)) throw StoreError(3421, column.name);
    return stored;
}

}  // namespace akarix
