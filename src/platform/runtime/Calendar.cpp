#include "platform/runtime/Calendar.h"

#include <QDateTime>
#include <cmath>

#include "platform/runtime/RuntimeError.h"

namespace akarix {

namespace {

constexpr std::int64_t kSecondsPerDay = 86400;
constexpr std::int64_t kFirstDay = -657434;  // 100-01-01
constexpr std::int64_t kLastDay = 2958465;   // 9999-12-31
constexpr std::int64_t kEpoch = 693899;      // days from 0000-03-01 to 1899-12-30
constexpr std::int64_t kDaysPerCycle = 146097;

Date& ReplacedClock() {
    static Date moment;
    return moment;
}

}  // namespace

Moment Moment::of(Date date) {
    const double serial = date.Serial();
    if (!(std::abs(serial) < 1e9)) throw RuntimeError(5);
    auto day = static_cast<std::int64_t>(serial);
    auto second = std::llround(std::abs(serial - static_cast<double>(day)) * kSecondsPerDay);
    if (second == kSecondsPerDay) {
        second = 0;
        ++day;
    }
    if (day < kFirstDay || day > kLastDay) throw RuntimeError(5);
    return {day, static_cast<int>(second)};
}

Date Moment::date() const {
    if (day < kFirstDay || day > kLastDay) throw RuntimeError(5);
    const double fraction = second / static_cast<double>(kSecondsPerDay);
    const auto whole = static_cast<double>(day);
    return Date(day < 0 ? whole - fraction : whole + fraction);
}

// The year is taken to begin in March, so that the leap day ends it.
std::int64_t DayNumber(std::int64_t year, int month, std::int64_t day) {
    const std::int64_t y = month <= 2 ? year - 1 : year;
    const std::int64_t cycle = (y >= 0 ? y : y - 399) / 400;
    const std::int64_t yearOfCycle = y - cycle * 400;
    const std::int64_t dayOfYear = (153 * (month > 2 ? month - 3 : month + 9) + 2) / 5 + day - 1;
    const std::int64_t dayOfCycle = yearOfCycle * 365 + yearOfCycle / 4 - yearOfCycle / 100 + dayOfYear;
    return cycle * kDaysPerCycle + dayOfCycle - kEpoch;
}

CivilDay Moment::civil() const {
    const std::int64_t n = day + kEpoch;  // never negative in the years that are allowed
    const std::int64_t cycle = n / kDaysPerCycle;
    const std::int64_t dayOfCycle = n % kDaysPerCycle;
    const std::int64_t yearOfCycle =
        (dayOfCycle - dayOfCycle / 1460 + dayOfCycle / 36524 - dayOfCycle / 146096) / 365;
    const std::int64_t dayOfYear = dayOfCycle - (365 * yearOfCycle + yearOfCycle / 4 - yearOfCycle / 100);
    const std::int64_t m = (5 * dayOfYear + 2) / 153;
    const int month = static_cast<int>(m < 10 ? m + 3 : m - 9);
    return {static_cast<int>(cycle * 400 + yearOfCycle + (month <= 2 ? 1 : 0)), month,
            static_cast<int>(dayOfYear - (153 * m + 2) / 5 + 1)};
}

bool IsLeapYear(int year) {
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int DaysInMonth(int year, int month) {
    if (month == 2) return IsLeapYear(year) ? 29 : 28;
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

int FullYear(int year) {
    if (year < 0 || year > 99) return year;
    return year < 30 ? 2000 + year : 1900 + year;
}

int Year(Date date) {
    return Moment::of(date).civil().year;
}
int Month(Date date) {
    return Moment::of(date).civil().month;
}
int Day(Date date) {
    return Moment::of(date).civil().day;
}

int Weekday(Date date) {
    const auto sinceSunday = (Moment::of(date).day - 1) % 7;  // day 1 was a Sunday
    return static_cast<int>((sinceSunday + 7) % 7) + 1;
}

Date DateSerial(int year, int month, int day) {
    if (year < 0 || year > 9999) throw RuntimeError(5);
    const std::int64_t months = std::int64_t{FullYear(year)} * 12 + month - 1;
    const std::int64_t carriedYear = (months >= 0 ? months : months - 11) / 12;
    return Moment{DayNumber(carriedYear, static_cast<int>(months - carriedYear * 12) + 1, day), 0}.date();
}

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
