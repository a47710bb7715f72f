#pragma once

#include "platform/runtime/Variant.h"

namespace akarix {

/// To a date; text by the rules of a year-month-day locale, era names and 年月日 included. Not a date: 13.
Date CDate(const Variant& value);

}  // namespace akarix
