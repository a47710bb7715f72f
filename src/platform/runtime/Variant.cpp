#include "platform/runtime/Variant.h"

#include <array>

namespace akarix {

VarType Variant::Type() const {
    // In the order of value_'s alternatives.
    static constexpr std::array kTypes{VarType::Empty,    VarType::Null, VarType::Boolean, VarType::Byte,
                                       VarType::Integer,  VarType::Long, VarType::Single,  VarType::Double,
                                       VarType::Currency, VarType::Date, VarType::String};
    static_assert(kTypes.size() == std::variant_size_v<decltype(value_)>);
    return kTypes[value_.index()];
}

}  // namespace akarix
