#pragma once

#include <QString>

#include "platform/jet/Workspace.h"

namespace akarix {

/// The root of the store.
class DBEngine {
 public:
    /// The default workspace is number 0; any other raises 3265.
    static Workspace& Workspaces(int index);
    /// Rewrites a damaged file in place: what still authenticates is read into a new file beside it, synced,
    /// renamed. The password is the one the last OpenDatabase of that name was given.
    static void RepairDatabase(const QString& name);
};

}  // namespace akarix
