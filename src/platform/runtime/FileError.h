#pragma once

#include <QString>

namespace akarix {

/// The classic number for an errno of a file call; 75 where nothing fits better.
int FileErrorNumber(int systemError);

/// Raises what a path's drive or folder is missing: 71 for the drive, 76 for the folder.
void RequireDrive(const QString& path);
void RequireFolder(const QString& path);

}  // namespace akarix
