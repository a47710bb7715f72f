#include "platform/runtime/CDate.h"

#include "platform/runtime/CDbl.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/DateText.h"
#include "platform/runtime/NumberText.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

namespace {

bool InRange(double serial) {
    return serial > -657435.0 && serial < 2958466.0;
}

}  // namespace

Date CDate(const Variant& value) {
    if (const Date* date = value.If<Date>()) return *date;
    if (const QString* text = value.If<QString>()) {
        if (const auto date = ReadDateText(*text)) return *date;
        const auto serial = ReadNumberText(*text);
        if (!serial || !InRange(serial->toDouble())) throw RuntimeError(13);
        return Date(serial->toDouble());
    }
    const double serial = CDbl(value);
    if (!InRange(serial)) throw RuntimeError(6);
    return Date(serial);
}

}  // namespace akarix
