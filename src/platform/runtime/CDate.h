#pragma once

#include "platform/runtime/Variant.h"

namespace akarix {

/// To a date; text by the rules of a year-month-day locale, era names and 年月日 included (see DateText.h);
/// a number, or the text of one, is a serial. Not a date: 13, a number beyond the range of dates: 6.
Date CDate(const Variant& value);

}  // namespace akarix
