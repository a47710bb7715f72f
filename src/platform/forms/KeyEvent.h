#pragma once

namespace akarix {

/// Key codes of the classic KeyDown event that the screens look at; letters and digits are their capital's
/// code.
namespace key {
constexpr int Back = 8;
constexpr int Tab = 9;
constexpr int Return = 13;
constexpr int Escape = 27;
constexpr int Left = 37;
constexpr int Up = 38;
constexpr int Right = 39;
constexpr int Down = 40;
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

}  // namespace akarix
