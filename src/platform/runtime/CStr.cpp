#include "platform/runtime/CStr.h"

#include "platform/runtime/DateFormat.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/NumberOf.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

QString CStr(const Variant& value) {
    switch (value.Type()) {
        case VarType::Empty:
            return {};
        case VarType::Null:
            throw RuntimeError(94);
        case VarType::String:
            return value.As<QString>();
        case VarType::Boolean:
            return value.As<bool>() ? u"True"_s : u"False"_s;
        case VarType::Date:
            return GeneralDateText(value.As<Date>());
        case VarType::Currency:
            return value.As<Currency>().ToText();
        default:
            return ShownNumberOf(value).generalText(SignificantDigits(value.Type()));
    }
}

}  // namespace akarix
