#include "platform/jet/DBEngine.h"

#include "platform/jet/CipherEngine.h"
#include "platform/jet/LastPassword.h"
#include "platform/jet/Repair.h"
#include "platform/jet/StoreError.h"
#include "platform/jet/StoreFile.h"
#include "platform/runtime/Path.h"

namespace akarix {

Workspace& DBEngine::Workspaces(int index) {
    static Workspace standard;
    if (index != 0) {
        throw StoreError(3265, QString(), QStringLiteral("DAO.DbEngine"));
    }
    return standard;
}

void DBEngine::RepairDatabase(const QString& name) {
    const QString path = LocalPath(name);
    RepairStoreFile(path, LastPassword(path));
}

void DBEngine::CopyDatabase(const QString& name, const QString& to, Progress& progress) {
    const QString path = LocalPath(name);
    CipherEngine(OpenStoreFile(path, LastPassword(path))).copyTo(LocalPath(to), progress);
}

}  // namespace akarix
