#pragma once

#include <QString>

namespace akarix {

/// The machine's path for a path of the program's. "X:\a\b" is the machine's on Windows and Drive/X/a/b below
/// the current directory elsewhere; "\" separates folders either way; anything else stays relative to the
/// current directory.
QString LocalPath(const QString& path);

/// The machine's folder that stands for the drive of a path; empty for a path without a drive.
QString DriveRoot(const QString& path);

}  // namespace akarix
