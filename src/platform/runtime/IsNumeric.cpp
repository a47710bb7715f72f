#include "platform/runtime/IsNumeric.h"

#include "platform/runtime/NumberText.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

bool IsNumeric(const Variant& value) {
    if (const QString* text = value.If<QString>()) {
        try {
            const auto number = ReadNumberText(*text);
            if (number) number->toDouble();
            return number.has_value();
        } catch (const RuntimeError&) {
            return false;  // a number, but beyond every kind
        }
    }
    return value.Type() != VarType::Null && value.Type() != VarType::Date;
}

}  // namespace akarix
