#pragma once

#include <QString>

namespace akarix {

/// The machine's path for a path of the program's. "X:\a\b" is the machine's on Windows and Drive/X/a/b below
/// the current directory elsewhere; "\" separates folders either way; anything else stays relative to the
/// current directory.
QString LocalPath(const QString& path);

/// Where a folder of the dealer's own is made when nobody has named a place: the first disk on Windows, the
/// user's folder elsewhere. Ends in the separator.
QString BaseFolder();

/// The machine's folder that stands for the drive of a path; empty for a path without a drive.
QString DriveRoot(const QString& path);

}  // namespace akarix
