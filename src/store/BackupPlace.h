#pragma once

#include <QString>

namespace akarix {

/// The folder of the backup copies, kept in the file BKPath of the current directory, in any case of its
/// letters; reading raises 53 where none was ever chosen.
QString BackupPlaceFile();
QString ReadBackupPlace();
void WriteBackupPlace(const QString& place);

/// The folder with its separator, and a weekday's copy in it. \param weekday 1 (Sunday) to 7.
QString BackupFolder(const QString& place);
QString BackupCopy(const QString& place, int weekday);

}  // namespace akarix
