#include "platform/forms/Control.h"

#include <QApplication>
#include <QVariant>
#include <algorithm>

#include "platform/runtime/RuntimeError.h"

namespace akarix {
namespace {

constexpr char kTabIndexProperty[] = "TabIndex";
constexpr char kSerialProperty[] = "controlSerial";

int Serial(const QWidget* control) {
    return control->property(kSerialProperty).toInt();
}

}  // namespace

void SetTabIndex(QWidget* control, int tabIndex) {
    control->setProperty(kTabIndexProperty, tabIndex);
}

int TabIndex(const QWidget* control) {
    const QVariant value = control->property(kTabIndexProperty);
    return value.isValid() ? value.toInt() : -1;
}

void SetFocus(QWidget* control) {
    QWidget* form = control->window();
    if (!control->isEnabled() || !control->isVisibleTo(form)) throw RuntimeError(5);
    const QWidget* modal = QApplication::activeModalWidget();
    if (form->isVisible() && !form->isActiveWindow() && (modal == nullptr || modal == form))
        form->activateWindow();
    control->setFocus(Qt::OtherFocusReason);
}

void RegisterControl(QWidget* control) {
    static int made = 0;
    control->setProperty(kSerialProperty, ++made);
}

QList<QWidget*> ControlsOf(const QWidget* parent) {
    QList<QWidget*> controls = parent->findChildren<QWidget*>();
    controls.removeIf([](const QWidget* widget) { return Serial(widget) == 0; });
    std::sort(controls.begin(), controls.end(),
              [](const QWidget* a, const QWidget* b) { return Serial(a) < Serial(b); });
    return controls;
}

}  // namespace akarix
