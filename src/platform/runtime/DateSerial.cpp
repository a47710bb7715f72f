#include "platform/runtime/DateSerial.h"

#include "platform/runtime/Calendar.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

Date DateSerial(int year, int month, int day) {
    if (year < 0 || year > 9999) throw RuntimeError(5);
    const std::int64_t months = std::int64_t{FullYear(year)} * 12 + month - 1;
    const std::int64_t carriedYear = (months >= 0 ? months : months - 11) / 12;
    return Moment{DayNumber(carriedYear, static_cast<int>(months - carriedYear * 12) + 1, day), 0}.date();
}

}  // namespace akarix
