#pragma once

#include "platform/runtime/Date.h"

namespace akarix {

/// The present moment, to the second, in the machine's time zone.
Date Now();
/// The present day, without a time.
Date Today();

/// Replaces the machine's clock for the tests; a zero date gives it back.
void SetClock(Date moment);

}  // namespace akarix
