#include "platform/forms/PressGuard.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QStyleHints>
#include <QWindow>
#include <cmath>
#include <utility>

#include "platform/forms/FlexGrid.h"
#include "platform/forms/Label.h"

namespace akarix {
namespace {

/// The control a press is about to reach. On the desk it comes by the window, and is judged there: a press
/// that has got as far as its control has already moved the keyboard.
QWidget* ControlUnder(QObject* receiver, const QMouseEvent& press) {
    if (auto* control = qobject_cast<QWidget*>(receiver)) return control;
    for (QWidget* top : QApplication::topLevelWidgets()) {
        if (top->windowHandle() != receiver) continue;
        QWidget* child = top->childAt(press.position().toPoint());
        return child != nullptr ? child : top;
    }
    return nullptr;
}

bool IsButton(const QWidget* control) {
    return qobject_cast<const QAbstractButton*>(control) != nullptr ||
           qobject_cast<const Image*>(control) != nullptr;
}

bool IsCell(const QWidget* control) {
    const auto* grid = control != nullptr ? qobject_cast<const FlexGrid*>(control->parentWidget()) : nullptr;
    return grid != nullptr && grid->viewport() == control;
}

bool IsNear(const QPointF& a, const QPointF& b) {
    const int distance = QGuiApplication::styleHints()->mouseDoubleClickDistance();
    return std::abs(a.x() - b.x()) <= distance && std::abs(a.y() - b.y()) <= distance;
}

class PressGuard : public QObject {
 public:
    using QObject::QObject;

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        switch (event->type()) {
            case QEvent::KeyPress:
                return isHeldOnButton(watched, static_cast<QKeyEvent&>(*event));
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonDblClick:
                return isSecondPress(watched, static_cast<QMouseEvent&>(*event));
            case QEvent::MouseMove:
                return swallowing_ && static_cast<QMouseEvent&>(*event).buttons().testFlag(Qt::LeftButton);
            case QEvent::MouseButtonRelease:
                return static_cast<QMouseEvent&>(*event).button() == Qt::LeftButton && endsSecondPress();
            case QEvent::ZOrderChange:
                noteRaised(watched);
                return false;
            default:
                return false;
        }
    }

 private:
    bool endsSecondPress() {
        if (!std::exchange(swallowing_, false)) return false;
        // The desk has brought the pressed window before the one that the first press opened.
        if (raised_ && raised_->isVisible()) {
            raised_->raise();
            raised_->activateWindow();
        }
        return true;
    }

    void noteRaised(QObject* watched) {
        auto* window = qobject_cast<QWidget*>(watched);
        if (window != nullptr && window->isWindow() && control_ && control_->window() != window)
            raised_ = window;
    }

    static bool isHeldOnButton(const QObject* watched, const QKeyEvent& press) {
        const bool presses =
            press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter || press.key() == Qt::Key_Space;
        return press.isAutoRepeat() && presses && qobject_cast<const QAbstractButton*>(watched) != nullptr;
    }

    // Counted by the time of the press, not of its arrival: a second one may have waited for the first one's
    // work.
    bool isSecondPress(QObject* watched, const QMouseEvent& press) {
        if (press.button() != Qt::LeftButton) return false;
        if (std::exchange(seen_, press.timestamp()) == press.timestamp())
            return swallowing_;  // window, then control
        const auto interval = static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
        const QWidget* control = ControlUnder(watched, press);
        const bool soon = press.timestamp() - time_ < interval;
        const bool same = control != nullptr && control == control_;
        const bool near = IsNear(press.globalPosition(), place_);
        swallowing_ = soon && (same ? IsButton(control) || (near && IsCell(control)) : near);
        if (swallowing_)
            return true;  // time and place stay: who goes on clicking is heard after the interval
        raised_.clear();
        time_ = press.timestamp();
        place_ = press.globalPosition();
        control_ = control;
        return false;
    }

    quint64 seen_ = 0;  ///< the press judged last
    quint64 time_ = 0;  ///< the press heard last
    QPointF place_;
    QPointer<const QWidget> control_;
    QPointer<QWidget> raised_;  ///< what has come before the pressed window since
    bool swallowing_ = false;   ///< the press under way, to its release
};

}  // namespace

void GuardPresses() {
    static QPointer<PressGuard> guard;
    if (!guard.isNull()) return;
    guard = new PressGuard(qApp);
    qApp->installEventFilter(guard);
}

}  // namespace akarix
