#pragma once

#include <QString>

namespace akarix {

/// Makes one folder; 75 when it exists, 76 when its parent does not.
void MkDir(const QString& path);

}  // namespace akarix
