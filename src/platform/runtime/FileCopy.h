#pragma once

#include <QString>

namespace akarix {

/// Copies a file that no file number holds (70) over an existing one.
void FileCopy(const QString& from, const QString& to);

}  // namespace akarix
