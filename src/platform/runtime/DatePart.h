#pragma once

#include "platform/runtime/Date.h"

namespace akarix {

int Year(Date date);
int Month(Date date);
int Day(Date date);
/// 1 (Sunday) to 7 (Saturday).
int Weekday(Date date);

}  // namespace akarix
