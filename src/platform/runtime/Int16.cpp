#include "platform/runtime/Int16.h"

#include "platform/runtime/Conversion.h"

namespace akarix {

Int16::Int16(int value) : value_(CInt(std::int32_t{value})) {}

Int16 Int16::Rounded(double value) {
    return Int16(CInt(value));
}

}  // namespace akarix
