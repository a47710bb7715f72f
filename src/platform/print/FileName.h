#pragma once

#include <QString>

namespace akarix {

/// "C:/a/list.pdf", 2 -> "C:/a/list (2).pdf".
QString NumberedPath(const QString& path, int number);
/// The path itself, or the first numbered one that is not taken yet.
QString FreePath(const QString& path);
/// A name that every file system takes: the marks none of them allows become full-width.
QString SafeFileName(const QString& name);
/// Where the operator keeps files: the documents folder, or the current directory where there is none.
QString DocumentFolder();
/// Why no file can be written at a path, as a line for the operator; empty when it can.
QString WhyNotWritable(const QString& path);

}  // namespace akarix
