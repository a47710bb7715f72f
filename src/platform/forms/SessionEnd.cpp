#include "platform/forms/SessionEnd.h"

#include <QApplication>
#include <QPointer>
#include <QSocketNotifier>
#include <QTimer>
#include <QWidget>
#include <utility>

#include "platform/runtime/Action.h"
#include "platform/runtime/EndSignals.h"

namespace akarix::SessionEnd {
namespace {

std::function<void()> leaveStep;
bool requested = false;

// Through the event loop each time: what waits in a closed dialog has to come to its end first.
void LeaveWhenIdle() {
    QTimer::singleShot(0, qApp, [] {
        if (Action::UnderWay())
            AfterAction(LeaveWhenIdle);
        else if (const auto leave = std::exchange(leaveStep, nullptr))
            leave();
    });
}

}  // namespace

void Await(std::function<void()> leave) {
    static QPointer<QObject> listener;
    delete listener.data();
    listener = new QObject(qApp);
    leaveStep = std::move(leave);
    requested = false;
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, listener, Request);
    if (const int descriptor = EndSignals(); descriptor >= 0) {
        auto* notifier = new QSocketNotifier(descriptor, QSocketNotifier::Read, listener);
        QObject::connect(notifier, &QSocketNotifier::activated, listener, [] {
            if (TakeEndSignals()) Request();
        });
    }
}

void Request() {
    if (std::exchange(requested, true)) return;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->isModal()) Dismiss(*window);
    LeaveWhenIdle();
}

bool Requested() {
    return requested;
}

void Dismiss(QWidget& window) {
    window.close();
    if (window.isVisible()) window.hide();
}

}  // namespace akarix::SessionEnd
