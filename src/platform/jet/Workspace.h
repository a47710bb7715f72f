#pragma once

#include <QString>
#include <memory>
#include <vector>

#include "platform/jet/Database.h"

namespace akarix {

/// A session: the databases opened in it are closed with it.
class Workspace {
 public:
    /// \param connect "MS Access;PWD=" and the password.
    /// Raises 3024 (no file), 3031 (wrong password), 3343 (damaged or no file of the store).
    /// The database lives until Close or until the workspace is closed.
    Database* OpenDatabase(const QString& name, bool exclusive, bool readOnly, const QString& connect);
    /// Makes an empty file; raises 3204 when it exists.
    Database* CreateDatabase(const QString& name, const QString& connect);
    void Close();

 private:
    std::vector<std::unique_ptr<Database>> databases_;
};

}  // namespace akarix
