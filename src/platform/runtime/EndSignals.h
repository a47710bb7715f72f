#pragma once

namespace akarix {

/// A descriptor that becomes readable when the system wants the program to end (SIGTERM, SIGHUP), caught from
/// the first call on. -1 where the system has no such signals.
int EndSignals();
/// Takes what has come so far; true when there was any.
bool TakeEndSignals();

}  // namespace akarix
