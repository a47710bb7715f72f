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

/// "Print #number, text": the text, then CR LF unless the statement ends in a semicolon (lineEnd false).
void Print(int number, const QString& text, bool lineEnd = true);

/// "Input #number, item" into a text: one item up to a comma or line end, leading blanks dropped, quotes
/// taken off.
QString Input(int number);

/// The name of the first file that fits the pattern (* and ? in its last part), or the empty text.
QString Dir(const QString& pattern);

/// Makes one folder; 75 when it exists, 76 when its parent does not.
void MkDir(const QString& path);

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
