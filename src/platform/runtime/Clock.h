#pragma once

#include "platform/runtime/Date.h"

namespace akarix {

/// The present moment, to the second, in the machine's time zone.
Date Now();
/// The present day, without a time.
Date Today();

/// Replaces the machine's clock where a day is played, not lived; a zero date gives it back.
void SetClock(Date moment);

}  // namespace akarix
