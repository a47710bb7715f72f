#pragma once

#include <QFocusEvent>

namespace akarix {

/// True when the focus went from control to control, the classic sense of GotFocus and LostFocus; going to
/// another window and back, or opening a menu, leaves the control the present one of its form.
inline bool IsFocusMove(const QFocusEvent& event) {
    return event.reason() != Qt::ActiveWindowFocusReason && event.reason() != Qt::PopupFocusReason &&
           event.reason() != Qt::MenuBarFocusReason;
}

}  // namespace akarix
