#pragma once

#include <QString>
#include <cstdint>
#include <optional>

#include "platform/runtime/Date.h"

namespace akarix {

/// An era of the Japanese calendar.
struct Era {
    char16_t letter;
    const char16_t* name;
    int firstYear;          ///< the western year that is its year 1
    std::int64_t firstDay;  ///< days since 1899-12-30
};

/// The era of a day; null before Meiji.
const Era* EraOfDay(std::int64_t day);
/// The era of a letter, of the first character of a name or of a whole name; null for anything else.
const Era* EraOfName(const QString& name);

/// Reads a date, a time or both by the rules of a Japanese system: year, month, day, then month, day, year,
/// then day, month, year, the first that makes a day; two numbers are month and day of this year, else day
/// and month, else a month of some year. "/", "-", "," and blanks part a date, ":" and "." a time; 年月日,
/// 時分秒, 午前 and 午後, era names and English month names are known, all in any width.
std::optional<Date> ReadDateText(const QString& text);

/// A date under a date mask.
QString FormatDate(Date date, const QString& mask);

/// The date, the time or both, as far as there is one: yyyy/mm/dd h:nn:ss.
QString GeneralDateText(Date date);

}  // namespace akarix
