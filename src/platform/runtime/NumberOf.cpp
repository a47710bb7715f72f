#include "platform/runtime/NumberOf.h"

#include "platform/runtime/RuntimeError.h"

namespace akarix {

int SignificantDigits(VarType type) {
    return type == VarType::Single ? 7 : 15;
}

Decimal NumberOf(const Variant& value) {
    switch (value.Type()) {
        case VarType::Empty:
            return {};
        case VarType::Null:
            throw RuntimeError(94);
        case VarType::Boolean:
            return Decimal::of(std::int64_t{value.As<bool>() ? -1 : 0});
        case VarType::Byte:
            return Decimal::of(std::int64_t{value.As<std::uint8_t>()});
        case VarType::Integer:
            return Decimal::of(std::int64_t{value.As<std::int16_t>()});
        case VarType::Long:
            return Decimal::of(std::int64_t{value.As<std::int32_t>()});
        case VarType::Single:
            return Decimal::shortest(static_cast<double>(value.As<float>()));
        case VarType::Double:
            return Decimal::shortest(value.As<double>());
        case VarType::Currency:
            return Decimal::of(value.As<Currency>());
        case VarType::Date:
            return Decimal::shortest(value.As<Date>().Serial());
        case VarType::String:
            break;
    }
    const auto decimal = ReadNumberText(value.As<QString>());
    if (!decimal) throw RuntimeError(13);
    return *decimal;
}

Decimal ShownNumberOf(const Variant& value) {
    switch (value.Type()) {
        case VarType::Single:
            return Decimal::of(static_cast<double>(value.As<float>()), 7);
        case VarType::Double:
            return Decimal::of(value.As<double>());
        case VarType::Date:
            return Decimal::of(value.As<Date>().Serial());
        case VarType::String:
            return Decimal::of(NumberOf(value).toDouble());
        default:
            return NumberOf(value);
    }
}

}  // namespace akarix
