#pragma once

#include <QString>
#include <memory>
#include <vector>

#include "platform/dao/Database.h"

namespace akarix {

/// A session: the databases opened in it are closed with it.
class Workspace {
 public:
    /// \param connect "MS Access;PWD=" and the password.
    /// Raises 3024 (no file), 3031 (wrong password), 3343 (damaged or no file of the store).
    /// The object stays with the workspace; once closed it raises 3420 at every use.
    Database* OpenDatabase(const QString& name, bool exclusive, bool readOnly, const QString& connect);
    /// Makes an empty file; raises 3204 when it exists.
    Database* CreateDatabase(const QString& name, const QString& connect);
    /// Closes what is open in it; it can be used again.
    void Close();

 private:
    Database* keep(const QString& name, std::unique_ptr<Engine> engine);

    std::vector<std::unique_ptr<Database>> databases_;
};

}  // namespace akarix
