#pragma once

#include <QString>

namespace akarix {

/// The name of the first file that fits the pattern (* and ? in its last part), or the empty text.
QString Dir(const QString& pattern);

}  // namespace akarix
