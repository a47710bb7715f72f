#pragma once

namespace akarix {

/// Asks for the folder of the backup copies and keeps it in the file BKPath.
void ChangeBackupPlace();

/// Copies the closed store into that folder under the name of the weekday, so that a week of copies stands
/// there, and tells the operator. Raises 53 where no folder was ever chosen; a copy that cannot be made is
/// passed over in silence, and the one of a week ago stays.
void BackUp();

}  // namespace akarix
