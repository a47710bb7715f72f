#pragma once

#include <QString>

namespace akarix {

/// A text under a mask of placeholders; an empty text takes the second section where there is one.
QString formatText(const QString& text, const QString& mask);

}  // namespace akarix
