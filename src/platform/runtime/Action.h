#pragma once

#include <functional>

namespace akarix {

/// The span of one action of the operator. Writes inside it are grouped: one transaction of the engine from
/// the first write to the end of the action, cut after 50 ms and before a definition, a copy or a close.
/// Outside any action each statement is committed by itself. Nesting counts as one action.
class Action {
 public:
    Action();
    /// Ends it, unless that is done, and runs what waited for the outermost one. Raises what either fails
    /// with, unless an error is on its way already.
    ~Action() noexcept(false);
    Action(const Action&) = delete;
    Action& operator=(const Action&) = delete;

    /// Brings the writes to the disk when this is the outermost action; raises when that fails.
    void end();

    static bool UnderWay();

 private:
    int errorsBefore_;
    bool ended_ = false;
};

/// Runs a step when the outermost action has ended, well or not; at once when none is under way.
void AfterAction(std::function<void()> step);

}  // namespace akarix
