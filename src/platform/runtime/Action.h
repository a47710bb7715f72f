#pragma once

namespace akarix {

/// The span of one action of the operator. Writes inside it are grouped: one transaction of the engine from
/// the first write to the end of the action, cut after 50 ms and before a definition, a copy or a close.
/// Outside any action each statement is committed by itself. Nesting counts as one action.
class Action {
 public:
    Action() { Begin(); }
    /// Raises when the writes could not be committed, unless an error is on its way already.
    ~Action() noexcept(false);
    Action(const Action&) = delete;
    Action& operator=(const Action&) = delete;

    static void Begin();
    static void End();
    static bool UnderWay();

 private:
    int errorsBefore_ = ErrorsOnTheirWay();
    static int ErrorsOnTheirWay();
};

}  // namespace akarix
