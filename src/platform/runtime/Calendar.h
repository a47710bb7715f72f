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

}  // namespace akarix
