#pragma once

#include <QColor>

namespace akarix {

/// The palette that older workbooks count their colours by; invalid outside 0 to 63.
QColor IndexedColor(int index);

}  // namespace akarix
