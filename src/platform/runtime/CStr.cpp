#include "platform/runtime/CStr.h"

#include "platform/runtime/Calendar.h"
#include "platform/runtime/NumberOf.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

namespace {

QString dateText(Date date) {
    const Moment moment = Moment::of(date);
    QString text;
    if (moment.hasDay()) {
        const CivilDay day = moment.civil();
        text = QString::asprintf("%d/%02d/%02d", day.year, day.month, day.day);
        if (!moment.hasTime()) return text;
        text += u' ';
    }
    return text + QString::asprintf("%d:%02d:%02d", moment.second / 3600, moment.second / 60 % 60,
                                    moment.second % 60);
}

}  // namespace

QString CStr(const Variant& value) {
    switch (value.Type()) {
        case VarType::Empty:
            return {};
        case VarType::Null:
            throw RuntimeError(94);
        case VarType::String:
            return value.As<QString>();
        case VarType::Boolean:
            return value.As<bool>() ? QStringLiteral("True") : QStringLiteral("False");
        case VarType::Date:
            return dateText(value.As<Date>());
        case VarType::Currency:
            return value.As<Currency>().ToText();
        default:
            return shownNumberOf(value).generalText(significantDigits(value.Type()));
    }
}

}  // namespace akarix
