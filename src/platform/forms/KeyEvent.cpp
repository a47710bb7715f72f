#include "platform/forms/KeyEvent.h"

#include <QKeyEvent>

namespace akarix {

int ToShift(Qt::KeyboardModifiers modifiers) {
    return (modifiers.testFlag(Qt::ShiftModifier) ? ShiftMask : 0) |
           (modifiers.testFlag(Qt::ControlModifier) ? CtrlMask : 0) |
           (modifiers.testFlag(Qt::AltModifier) ? AltMask : 0);
}

KeyEvent ToKeyEvent(const QKeyEvent& event) {
    const int code = event.key();
    KeyEvent result{0, ToShift(event.modifiers())};
    if (code >= Qt::Key_F1 && code <= Qt::Key_F12) {
        result.KeyCode = key::F1 + (code - Qt::Key_F1);
    } else if ((code >= Qt::Key_A && code <= Qt::Key_Z) || (code >= Qt::Key_0 && code <= Qt::Key_9)) {
        result.KeyCode = code;
    } else {
        switch (code) {
            case Qt::Key_Return:
            case Qt::Key_Enter:
                result.KeyCode = key::Return;
                break;
            case Qt::Key_Tab:
                result.KeyCode = key::Tab;
                break;
            case Qt::Key_Backtab:
                result.KeyCode = key::Tab;
                result.Shift |= ShiftMask;
                break;
            case Qt::Key_Backspace:
                result.KeyCode = key::Back;
                break;
            case Qt::Key_Escape:
                result.KeyCode = key::Escape;
                break;
            case Qt::Key_Space:
                result.KeyCode = key::Space;
                break;
            case Qt::Key_PageUp:
                result.KeyCode = key::PageUp;
                break;
            case Qt::Key_PageDown:
                result.KeyCode = key::PageDown;
                break;
            case Qt::Key_End:
                result.KeyCode = key::End;
                break;
            case Qt::Key_Home:
                result.KeyCode = key::Home;
                break;
            case Qt::Key_Left:
                result.KeyCode = key::Left;
                break;
            case Qt::Key_Up:
                result.KeyCode = key::Up;
                break;
            case Qt::Key_Right:
                result.KeyCode = key::Right;
                break;
            case Qt::Key_Down:
                result.KeyCode = key::Down;
                break;
            case Qt::Key_Insert:
                result.KeyCode = key::Insert;
                break;
            case Qt::Key_Delete:
                result.KeyCode = key::Delete;
                break;
            default:
                break;
        }
    }
    return result;
}

}  // namespace akarix
