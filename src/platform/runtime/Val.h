#pragma once

#include <QString>

namespace akarix {

/// The number at the front of a text: blanks, tabs and line feeds are skipped, reading stops at the first
/// character that is no part of a number; "&H" and "&O" are read; 0 when there is none. Never raises 13.
double Val(const QString& text);

}  // namespace akarix
