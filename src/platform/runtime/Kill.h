#pragma once

#include <QString>

namespace akarix {

/// Removes a file; 53 when there is none, 70 when it is held.
void Kill(const QString& path);

}  // namespace akarix
