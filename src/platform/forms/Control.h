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

/// Gives a control the focus; raises 5 when it is invisible or disabled.
void SetFocus(QWidget* control);

}  // namespace akarix
