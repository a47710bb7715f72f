#include "platform/runtime/IsDate.h"

#include "platform/runtime/DateText.h"

namespace akarix {

bool IsDate(const Variant& value) {
    if (const QString* text = value.If<QString>()) return ReadDateText(*text).has_value();
    return value.Type() == VarType::Date;
}

}  // namespace akarix
