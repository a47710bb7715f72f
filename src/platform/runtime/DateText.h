#pragma once

#include <QString>
#include <optional>

#include "platform/runtime/Date.h"

namespace akarix {

/// Reads a date, a time or both by the rules of a Japanese system: year, month, day, then month, day, year,
/// then day, month, year, the first that makes a day; two numbers are month and day of this year, else day
/// and month, else a month of some year. "/", "-", "," and blanks part a date, ":" and "." a time; 年月日,
/// 時分秒, 午前 and 午後, era names and English month names are known, all in any width.
std::optional<Date> ReadDateText(const QString& text);

}  // namespace akarix
