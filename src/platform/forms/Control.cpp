#include "platform/forms/Control.h"

#include <QApplication>
#include <QVariant>
#include <algorithm>

#include "platform/runtime/RuntimeError.h"

namespace akarix {
namespace {

constexpr char tabIndexProperty[] = "TabIndex";
constexpr char serialProperty[] = "controlSerial";

int serial(const QWidget* control) {
    return control->property(serialProperty).toInt();
}

}  // namespace

void SetTabIndex(QWidget* control, int tabIndex) {
    control->setProperty(tabIndexProperty, tabIndex);
}

int TabIndex(const QWidget* control) {
    const QVariant value = control->property(tabIndexProperty);
    return value.isValid() ? value.toInt() : -1;
}

void SetFocus(QWidget* control) {
    QWidget* form = control->window();
    if (!control->isEnabled() || !control->isVisibleTo(form)) throw RuntimeError(5);
    const QWidget* modal = QApplication::activeModalWidget();
    if (form->isVisible() && !form->isActiveWindow() && (modal == nullptr || modal == form)) {
        form->activateWindow();
    }
    control->setFocus(Qt::OtherFocusReason);
}

void RegisterControl(QWidget* control) {
    static int made = 0;
    control->setProperty(serialProperty, ++made);
}

QList<QWidget*> ControlsOf(const QWidget* parent) {
    QList<QWidget*> controls = parent->findChildren<QWidget*>();
    controls.removeIf([](const QWidget* widget) { return serial(widget) == 0; });
    std::sort(controls.begin(), controls.end(),
              [](const QWidget* a, const QWidget* b) { return serial(a) < serial(b); });
    return controls;
}

}  // namespace akarix
