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
int Hour(Date date) {
    return Moment::of(date).second / 3600;
}
int Minute(Date date) {
    return Moment::of(date).second / 60 % 60;
}
int Second(Date date) {
    return Moment::of(date).second % 60;
}

int Weekday(Date date) {
    const auto sinceSunday = (Moment::of(date).day - 1) % 7;  // day 1 was a Sunday
    return static_cast<int>((sinceSunday + 7) % 7) + 1;
}

}  // namespace akarix
