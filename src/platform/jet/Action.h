#pragma once

namespace akarix {

/// The span of one action of the operator. Writes inside it are grouped: one transaction of the engine from
/// the first write to the end of the action, cut after 50 ms and before a definition, a copy or a close.
/// Outside any action each statement is committed by itself. Nesting counts as one action.
class Action {
 public:
    Action() { Begin(); }
    ~Action() { End(); }
    Action(const Action&) = delete;
    Action& operator=(const Action&) = delete;

    static void Begin();
    static void End();
    static bool UnderWay();
};

}  // namespace akarix
