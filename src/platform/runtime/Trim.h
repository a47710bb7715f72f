#pragma once

#include <QString>

namespace akarix {

/// Without the blanks at both ends, at the left or at the right: half-width and ideographic ones. Tabs and
/// line breaks are no blanks.
QString Trim(const QString& text);
QString LTrim(const QString& text);
QString RTrim(const QString& text);

}  // namespace akarix
