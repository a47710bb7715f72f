#include "values/Dates.h"

#include <array>

#include "platform/runtime/CDate.h"
#include "platform/runtime/Clock.h"
#include "platform/runtime/DatePart.h"
#include "platform/runtime/IsDate.h"
#include "platform/runtime/Trim.h"
#include "values/NumStr.h"
#include "values/NumVal.h"

namespace akarix {

std::int16_t gDateMode = 0;

namespace {

constexpr int kEraBase = 1988;

bool isEraMode() {
    return gDateMode == 1;
}

QString padded(int number, int digits) {
    return QStringLiteral("%1").arg(number, digits, 10, QChar(u'0'));
}

/// A year, month and day text as the run time reads it: western, whatever the screens show.
QString westernText(const QString& text) {
    const qsizetype first = text.indexOf(u'/');
    const qsizetype second = first < 0 ? -1 : text.indexOf(u'/', first + 1);
    if (first <= 0 || second < 0) return {};
    QString year = text.left(first);
    if (isEraMode()) year = NumStr(NumVal(year) + kEraBase);
    return year + text.mid(first);
}

}  // namespace

int DisplayYear(Date date) {
    return isEraMode() ? Year(date) - kEraBase : Year(date);
}

QString DateText(Date date) {
    if (date.IsZero()) return {};
    return QString::number(DisplayYear(date)) + u'/' + padded(Month(date), 2) + u'/' + padded(Day(date), 2);
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
    return text.count(u'/') == 2 && IsDate(westernText(text));
}

Date ParseDate(const QString& text) {
    const QString typed = Trim(text);
    if (typed.isEmpty()) return {};
    const QString western = westernText(CompleteDate(DotsToSlashes(typed)));
    return IsDate(western) ? CDate(western) : Date();
}

Date ParseStrictDate(const QString& text) {
    return IsFullDateText(text) ? ParseDate(text) : Date();
}

bool IsDateSet(const Variant& value) {
    return IsDate(value) && !CDate(value).IsZero();
}

QString YobiName(Date date) {
    static const std::array<QString, 7> kNames = {
        QStringLiteral("日曜"), QStringLiteral("月曜"), QStringLiteral("火曜"), QStringLiteral("水曜"),
        QStringLiteral("木曜"), QStringLiteral("金曜"), QStringLiteral("土曜")};
    return kNames[static_cast<std::size_t>(Weekday(date) - 1)];
}

}  // namespace akarix
