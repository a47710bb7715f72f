#include "store/FieldValue.h"

#include "platform/runtime/Conversion.h"
#include "values/Dates.h"

namespace akarix {

Currency MoneyOf(const Variant& value) {
    if (const Currency* money = value.If<Currency>()) return *money;
    return value.IsNull() ? Currency() : CCur(value);
}

std::int32_t LongOf(const Variant& value) {
    if (const std::int32_t* number = value.If<std::int32_t>()) return *number;
    return value.IsNull() ? 0 : CLng(value);
}

std::int16_t IntegerOf(const Variant& value) {
    if (const std::int16_t* number = value.If<std::int16_t>()) return *number;
    return value.IsNull() ? std::int16_t{0} : CInt(value);
}

Date DateOf(const Variant& value) {
    return IsDateSet(value) ? CDate(value) : Date();
}

}  // namespace akarix
