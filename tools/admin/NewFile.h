#pragma once

#include <QString>
#include <functional>

namespace akarix::admin {

class FileClaim;

/// Why a file may not be made here; empty when it may. An existing file is touched on demand
/// alone, and never while somebody has it open.
QString Refusal(const QString& path, bool force, const FileClaim& claim);

/// Lets `make` write the file under another name beside it and puts it in its place when that is done, so
/// that a failure half-way leaves what was there. Raises 75 when it cannot be put there.
void ReplaceFile(const QString& name, const std::function<void(const QString& working)>& make);

/// Copies a file's bytes as they stand; they are on the disk when it returns. A copy that breaks off is taken
/// away.
void CopyFile(const QString& from, const QString& to);

}  // namespace akarix::admin
