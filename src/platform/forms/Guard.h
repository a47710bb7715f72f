#pragma once

#include <functional>

namespace akarix {

/// What is run around every event handler that goes through Form::on, nested handlers included; the shell
/// hangs the store's grouping of writes here, so that this folder need not know the store. The end hook runs
/// before an escaped error is shown; what it raises itself is shown the same way.
void SetActionHooks(std::function<void()> begin, std::function<void()> end);

/// Runs a handler inside an action. A RuntimeError that escapes is shown in the run time's box and ends the
/// handler alone; any other exception is shown as error 51 (internal error). Gives false when an error was
/// shown.
bool RunGuarded(const std::function<void()>& handler);

/// Whether an action is under way, if only waiting in a dialog.
bool ActionUnderWay();

/// Runs a step when the outermost action has ended; at once when no action is running.
void AfterAction(std::function<void()> step);

}  // namespace akarix
