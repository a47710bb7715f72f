#pragma once

#include <QIcon>
#include <QPixmap>

class QWidget;

namespace akarix {

/// Small pictures, drawn for the widget's own pixel density.
enum class Icon { Lookup, Notice, Question, Stop, Keyboard };
QPixmap DrawIcon(Icon icon, int size, const QWidget* target);

/// The program's own, in every size that windows, task bars and the splash ask for.
QIcon ProgramIcon();

}  // namespace akarix
