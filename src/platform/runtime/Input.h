#pragma once

#include <QString>

namespace akarix {

/// "Input #number, item" into a text: one item up to a comma or line end, leading blanks dropped, quotes
/// taken off.
QString Input(int number);

}  // namespace akarix
