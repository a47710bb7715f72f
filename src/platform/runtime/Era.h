#pragma once

#include <QString>
#include <cstdint>

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

}  // namespace akarix
