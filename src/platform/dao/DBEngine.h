#pragma once

#include <QString>

#include "platform/dao/Workspace.h"
#include "platform/runtime/Progress.h"

namespace akarix {

/// The root of the store.
class DBEngine {
 public:
    /// The default workspace is number 0; any other raises 3265.
    static Workspace& Workspaces(int index);
    /// Rewrites a damaged file in place: what still authenticates is read into a new file beside it, synced,
    /// renamed. The password is the one the last OpenDatabase of that name was given.
    static void RepairDatabase(const QString& name);
    /// Copies a file that this process need not have open, with its password as above: sound, and between two
    /// commits of whoever else works with it. A damaged one is not copied (3343); a file at the other place
    /// is replaced by a whole copy or left alone. Raises 76 where nothing can be written, 61 on a full disk,
    /// 32755 when it is stopped.
    static void CopyDatabase(const QString& name, const QString& to, Progress& progress = Progress::Silent());
};

}  // namespace akarix
