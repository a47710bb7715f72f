#include "platform/runtime/DatePart.h"

#include "platform/runtime/Calendar.h"

namespace akarix {

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

}  // namespace akarix
