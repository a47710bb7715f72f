#include "platform/forms/KeyEvent.h"

#include <QKeyEvent>

namespace akarix {

int ToShift(Qt::KeyboardModifiers modifiers) {
    return (modifiers.testFlag(Qt::ShiftModifier) ? ShiftMask : 0) |
           (modifiers.testFlag(Qt::ControlModifier) ? CtrlMask : 0) |
           (modifiers.testFlag(Qt::AltModifier) ? AltMask : 0);
}

KeyEvent ToKeyEvent(const QKeyEvent& event) {
    const int shift = ToShift(event.modifiers());
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return {key::Return, shift};
        case Qt::Key_Tab:
            return {key::Tab, shift};
        case Qt::Key_Backtab:
            return {key::Tab, shift | ShiftMask};
        case Qt::Key_Escape:
            return {key::Escape, shift};
        case Qt::Key_Up:
            return {key::Up, shift};
        case Qt::Key_Down:
            return {key::Down, shift};
        default:
            return {0, shift};
    }
}

}  // namespace akarix
