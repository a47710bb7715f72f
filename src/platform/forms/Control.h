#pragma once

#include <QWidget>

namespace akarix {

/// Sizes of the classic screens are given in twips: 15 to a pixel at 96 dpi. Qt scales the pixel.
constexpr int TwipsPerPixel = 15;
constexpr int Twips(int twips) {
    return (twips + TwipsPerPixel / 2) / TwipsPerPixel;
}

/// The place of a control in the field walk; -1 for a control that has none. Set once, by the form that
/// builds it.
void SetTabIndex(QWidget* control, int tabIndex);
int TabIndex(const QWidget* control);

/// Gives a control the focus and brings its form to the front; raises 5 when it is hidden on its form or
/// disabled. On a form not yet shown the focus waits for the showing.
void SetFocus(QWidget* control);

/// Gives a control the system's name for it, by which tests and the month player find it.
template <class T>
T& Named(T* control, const QString& name) {
    control->setObjectName(name);
    return *control;
}

/// Notes a widget as a control of its form; every control's constructor calls this.
void RegisterControl(QWidget* control);
/// The controls below a widget in the order they were made, wherever the layouts have put them.
QList<QWidget*> ControlsOf(const QWidget* parent);

}  // namespace akarix
