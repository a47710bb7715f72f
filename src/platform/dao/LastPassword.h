#pragma once

#include <QString>

namespace akarix {

/// The password each file was last opened with, for the repair, which is given a name alone.
void RememberPassword(const QString& path, const QString& password);
QString LastPassword(const QString& path);

}  // namespace akarix
