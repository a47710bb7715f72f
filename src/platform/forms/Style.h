#pragma once

#include <QColor>
#include <QFont>

class QApplication;

namespace akarix {

/// Dresses the application: palette, fonts, spacing, the colours of focus and of fixed cells. Called once,
/// before the first form.
void ApplyStyle(QApplication& application);

/// The screen's Japanese font (ＭＳ ゴシック where the machine has it, else IPA ゴシック).
QFont ScreenFont();
/// Width in pixels of a text box that shows so many half-width characters.
int BoxWidth(int bytes);

/// The tint of a grid's present row.
QColor PresentRowColour();

}  // namespace akarix
