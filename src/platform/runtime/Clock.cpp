#include "platform/runtime/Clock.h"

#include <QDateTime>
#include <cmath>

#include "platform/runtime/Calendar.h"

namespace akarix {

namespace {

Date& ReplacedClock() {
    static Date moment;
    return moment;
}

}  // namespace

Date Now() {
    if (!ReplacedClock().IsZero()) return ReplacedClock();
    const QDateTime now = QDateTime::currentDateTime();
    const QDate day = now.date();
    return Moment{DayNumber(day.year(), day.month(), day.day()), now.time().msecsSinceStartOfDay() / 1000}
        .date();
}

Date Today() {
    return Date(std::trunc(Now().Serial()));
}

void SetClock(Date moment) {
    ReplacedClock() = moment;
}

}  // namespace akarix
