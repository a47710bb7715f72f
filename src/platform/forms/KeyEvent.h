#pragma once

#include <Qt>
#include <initializer_list>

class QKeyEvent;

namespace akarix {

/// Key codes of the classic KeyDown event: those that the screens look at.
namespace key {
constexpr int Tab = 9;
constexpr int Return = 13;
constexpr int Escape = 27;
constexpr int Up = 38;
constexpr int Down = 40;
}  // namespace key

/// Bits of the Shift argument of key and mouse events.
enum ShiftBit { ShiftMask = 1, CtrlMask = 2, AltMask = 4 };

/// A key press on its way to a control. A handler that sets KeyCode to 0 swallows it.
struct KeyEvent {
    int KeyCode = 0;
    int Shift = 0;
};

/// The classic face of a key press. The keypad's Enter is Enter, Shift+Tab is Tab with the Shift bit; a key
/// that no screen looks at has KeyCode 0.
KeyEvent ToKeyEvent(const QKeyEvent& event);
int ToShift(Qt::KeyboardModifiers modifiers);

/// Offers a press to a KeyDown signal; true when the control itself must not see it: the handler has
/// swallowed it, or it is one of the keys that belong to the handler alone.
template <class Emit>
bool OfferKey(const QKeyEvent& press, std::initializer_list<int> handlersOwn, Emit emitKeyDown) {
    KeyEvent event = ToKeyEvent(press);
    if (event.KeyCode == 0) return false;
    const int pressed = event.KeyCode;
    emitKeyDown(event);
    if (event.KeyCode == 0) return true;
    for (const int own : handlersOwn)
        if (own == pressed) return true;
    return false;
}

}  // namespace akarix
