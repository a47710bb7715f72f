#pragma once

#include <cstdint>

#include "platform/runtime/Date.h"

namespace akarix {

struct CivilDay {
    int year;
    int month;
    int day;
};

/// A date value in whole seconds: a serial carries rounding noise, so that its day and its time of day must
/// be found together. Raises 5 outside the years 100 to 9999.
struct Moment {
    std::int64_t day;  ///< days since 1899-12-30
    int second;        ///< of the day, 0 to 86,399

    static Moment of(Date date);
    /// Before 1899-12-30 the fraction of a serial still counts forward from midnight.
    Date date() const;
    CivilDay civil() const;
    bool hasDay() const { return day != 0; }
    bool hasTime() const { return second != 0; }
};

bool IsLeapYear(int year);
int DaysInMonth(int year, int month);
/// Days since 1899-12-30 in the Gregorian calendar; month 1 to 12, any day.
std::int64_t DayNumber(std::int64_t year, int month, std::int64_t day);
/// 0 to 29 mean 2000 to 2029, 30 to 99 mean 1930 to 1999; others stay.
int FullYear(int year);

int Year(Date date);
int Month(Date date);
int Day(Date date);
/// 1 (Sunday) to 7 (Saturday).
int Weekday(Date date);

/// Builds a date; month and day outside their range carry over (month 13 is January of the next year).
/// Years 0 to 29 mean 2000 to 2029, 30 to 99 mean 1930 to 1999. Raises 5 outside 100 to 9999.
Date DateSerial(int year, int month, int day);

/// The present moment, to the second, in the machine's time zone.
Date Now();
/// The present day, without a time.
Date Today();

/// Replaces the machine's clock where a day is played, not lived; a zero date gives it back.
void SetClock(Date moment);

}  // namespace akarix
