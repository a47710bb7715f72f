#include "values/Dates.h"

#include <array>

#include "platform/runtime/Calendar.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/Text.h"
#include "values/NumStr.h"
#include "values/NumVal.h"

namespace akarix {

std::int16_t gDateMode = 0;

namespace {

bool IsEraMode() {
    return gDateMode == 1;
}

QString Padded(int number, int digits) {
    return u"%1"_s.arg(number, digits, 10, QChar(u'0'));
}

/// A year, month and day text as the run time reads it: western, whatever the screens show.
QString WesternText(const QString& text) {
    const qsizetype first = text.indexOf(u'/');
    const qsizetype second = first < 0 ? -1 : text.indexOf(u'/', first + 1);
    if (first <= 0 || second < 0) return {};
    QString year = text.left(first);
    if (IsEraMode()) year = NumStr(NumVal(year) + kEraBase);
    return year + text.mid(first);
}

}  // namespace

int DisplayYear(Date date) {
    return IsEraMode() ? Year(date) - kEraBase : Year(date);
}

QString DateText(Date date) {
    if (date.IsZero()) return {};
    return QString::number(DisplayYear(date)) + u'/' + Padded(Month(date), 2) + u'/' + Padded(Day(date), 2);
}

QString CompleteDate(const QString& text) {
    switch (text.count(u'/')) {
        case 0:
            return {};
        case 1:
            return QString::number(DisplayYear(Today())) + u'/' + text;
        default:
            return text;
    }
}

QString DotsToSlashes(const QString& text) {
    return QString(text).replace(u'.', u'/');
}

bool IsFullDateText(const QString& text) {
    return text.count(u'/') == 2 && IsDate(WesternText(text));
}

Date ParseDate(const QString& text) {
    const QString typed = Trim(text);
    if (typed.isEmpty()) return {};
    const QString western = WesternText(CompleteDate(DotsToSlashes(typed)));
    return IsDate(western) ? CDate(western) : Date();
}

Date ParseStrictDate(const QString& text) {
    return IsFullDateText(text) ? ParseDate(text) : Date();
}

bool IsDateSet(const Variant& value) {
    return IsDate(value) && !CDate(value).IsZero();
}

QString YobiName(Date date) {
    static const std::array<QString, 7> kNames = {u"日曜"_s, u"月曜"_s, u"火曜"_s, u"水曜"_s,
                                                  u"木曜"_s, u"金曜"_s, u"土曜"_s};
    return kNames[static_cast<std::size_t>(Weekday(date) - 1)];
}

}  // namespace akarix
