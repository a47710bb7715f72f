#pragma once

#include <QString>

namespace akarix {

/// Sequential text files under a file number of 1 to 511, in code page 932, lines ending in CR LF.
/// Errors of all file statements: 52 bad number, 53 no file, 54 bad mode, 55 already open, 61 disk full,
/// 62 past the end, 70 permission, 71 no disk in the drive, 75 path access, 76 no folder.
enum class OpenMode { Input, Output, Append };

void Open(const QString& path, OpenMode mode, int number);
/// Closing a number that is not open does nothing.
void Close(int number);
/// The lowest number that is free.
int FreeFile();

}  // namespace akarix
