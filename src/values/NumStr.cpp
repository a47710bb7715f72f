#include "values/NumStr.h"

#include "platform/runtime/Conversion.h"
#include "platform/runtime/Format.h"

namespace akarix {

QString NumStr(const Variant& value) {
    return StrUnpadded(value);
}

QString PadFormat(const Variant& value, const QString& mask) {
    return (QString(20, u' ') + Format(value, mask)).right(mask.size());
}

QString PadText(const QString& text, int width) {
    return text.leftJustified(width, u' ', true);
}

}  // namespace akarix
