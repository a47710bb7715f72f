#pragma once

#include "platform/runtime/CDbl.h"
#include "platform/runtime/Variant.h"

namespace akarix {

/// Applies `cut` (Int or Fix, on Currency and double) to a value of any kind and keeps its kind; Null stays
/// Null, Empty and a Boolean become an Integer, text a Double.
template <class Cut>
Variant WholePart(const Variant& value, Cut cut) {
    switch (value.Type()) {
        case VarType::Empty:
            return std::int16_t{0};
        case VarType::Boolean:
            return std::int16_t{value.As<bool>() ? std::int16_t{-1} : std::int16_t{0}};
        case VarType::Currency:
            return cut(value.As<Currency>());
        case VarType::Single:
            return static_cast<float>(cut(static_cast<double>(value.As<float>())));
        case VarType::Date:
            return Date(cut(value.As<Date>().Serial()));
        case VarType::Double:
        case VarType::String:
            return cut(CDbl(value));
        default:
            return value;
    }
}

}  // namespace akarix
