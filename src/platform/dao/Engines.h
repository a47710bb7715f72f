#pragma once

#include "platform/dialect/Engine.h"

namespace akarix {

// Which engine a file is for: the one place that names them. Paths are of the local file system.

/// Raises 3024 (no file), 3031 (wrong password), 3343 (damaged or no file of the store). The password is kept
/// in mind for the two that are given a path alone.
std::unique_ptr<Engine> OpenEngine(const QString& path, const QString& password, bool exclusive,
                                   bool readOnly);
/// On a new, empty file.
std::unique_ptr<Engine> CreateEngine(const QString& path, const QString& password);

/// With the password the file was last opened with.
std::unique_ptr<Engine> OpenEngineAgain(const QString& path);
/// As DBEngine::RepairDatabase tells.
void RepairFile(const QString& path);

}  // namespace akarix
