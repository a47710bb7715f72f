#pragma once

#include "platform/runtime/Date.h"

namespace akarix {

/// Builds a date; month and day outside their range carry over (month 13 is January of the next year).
/// Years 0 to 29 mean 2000 to 2029, 30 to 99 mean 1930 to 1999. Raises 5 outside 100 to 9999.
Date DateSerial(int year, int month, int day);

}  // namespace akarix
