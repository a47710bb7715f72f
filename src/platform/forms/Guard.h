#pragma once

#include <functional>

namespace akarix {

/// Runs a handler inside an action (platform/runtime/Action.h), whose writes are on the disk before anything
/// is told behind it: notices wait for the action's end and are dropped when it fails. A RuntimeError that
/// escapes is shown in the run time's box and ends the handler alone; any other exception is shown as error
/// 51 (internal error). Gives false when an error was shown.
bool RunGuarded(const std::function<void()>& handler);

}  // namespace akarix
