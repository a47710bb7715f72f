#pragma once

#include <QPixmap>

class QWidget;

namespace akarix {

/// Small pictures, drawn for the widget's own pixel density.
enum class Icon { Lookup, Notice, Question, Stop, Keyboard };
QPixmap DrawIcon(Icon icon, int size, const QWidget* target);

}  // namespace akarix
