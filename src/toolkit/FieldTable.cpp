#include "toolkit/FieldTable.h"

#include "platform/runtime/Conversion.h"
#include "platform/runtime/Format.h"

namespace akarix {

DisplayRule Masked(const QString& mask) {
    return [mask](const Variant& value) { return Format(value, mask); };
}

DisplayRule MaskedUnlessZero(const QString& mask) {
    return [mask](const Variant& value) { return CCur(value).IsZero() ? QString() : Format(value, mask); };
}

}  // namespace akarix
