#pragma once

#include <Qt>
#include <initializer_list>

class QKeyEvent;

namespace akarix {

/// Key codes of the classic KeyDown event that the screens look at; letters and digits are their capital's
/// code.
namespace key {
constexpr int Back = 8;
constexpr int Tab = 9;
constexpr int Return = 13;
constexpr int Escape = 27;
constexpr int Space = 32;
constexpr int PageUp = 33;
constexpr int PageDown = 34;
constexpr int End = 35;
constexpr int Home = 36;
constexpr int Left = 37;
constexpr int Up = 38;
constexpr int Right = 39;
constexpr int Down = 40;
constexpr int Insert = 45;
constexpr int Delete = 46;
constexpr int F1 = 112;  // F2 is 113, and so on to F12
}  // namespace key

/// Bits of the Shift argument of key and mouse events.
enum ShiftBit { ShiftMask = 1, CtrlMask = 2, AltMask = 4 };

/// A key press on its way to a control. A handler that sets KeyCode to 0 swallows it.
struct KeyEvent {
    int KeyCode = 0;
    int Shift = 0;
};

/// The classic face of a key press. The keypad's Enter is Enter, Shift+Tab is Tab with the Shift bit; a key
/// without a classic code has KeyCode 0.
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
