#include "platform/runtime/Str.h"

#include "platform/runtime/CStr.h"
#include "platform/runtime/NumberOf.h"

namespace akarix {

QString Str(const Variant& value) {
    const VarType type = value.Type();
    if (type == VarType::Boolean || type == VarType::Date) return CStr(value);
    const Decimal number = shownNumberOf(value);
    QString text =
        type == VarType::Currency ? number.plainText() : number.generalText(significantDigits(type));
    if (text.startsWith(QLatin1String("0."))) text.remove(0, 1);
    if (text.startsWith(QLatin1String("-0."))) text.remove(1, 1);
    return number.negative ? text : u' ' + text;
}

}  // namespace akarix
