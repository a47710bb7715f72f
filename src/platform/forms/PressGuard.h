#pragma once

namespace akarix {

/// Makes one slip of the hand one press, in every window of the program: of a double-click, by the platform's
/// interval and distance, the second press does nothing, whatever has come under the mouse in between; and a
/// held Enter or Space does not press a button it runs on into. Inside a text box, a list's scroll bar and
/// the like a double-click keeps its native meaning. Further calls change nothing.
void GuardPresses();

}  // namespace akarix
