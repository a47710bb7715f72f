#pragma once

#include <QString>
#include <functional>

class QCommandLineParser;

namespace akarix::admin {

/// Has a store made of the name given, or of the program's own, and gives that name. An existing file is
/// touched with --force alone, and never while somebody has it open: raises Stop.
QString MakeStore(const QCommandLineParser& given, const std::function<void(const QString& working)>& make);

/// Lets `make` write the file under another name beside it and puts it in its place when that is done, so
/// that a failure half-way leaves what was there. Raises 75 when it cannot be put there.
void ReplaceFile(const QString& name, const std::function<void(const QString& working)>& make);

/// Copies a file's bytes as they stand; they are on the disk when it returns. A copy that breaks off is taken
/// away.
void CopyFile(const QString& from, const QString& to);

}  // namespace akarix::admin
