#pragma once

#include <QSize>

class QWidget;

namespace akarix {

/// Makes a form with a layout fit a room given in pixels, frame apart, where the least its layout takes does
/// not: the lines move closer together, and where that is not enough, all that stands on the form scrolls and
/// follows the keyboard. A form that fits stays as it is.
void FitToRoom(QWidget& form, QSize room);

}  // namespace akarix
