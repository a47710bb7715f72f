#include "platform/dao/DBEngine.h"

#include "platform/cipher/CipherEngine.h"
#include "platform/cipher/Repair.h"
#include "platform/cipher/StoreFile.h"
#include "platform/dao/LastPassword.h"
#include "platform/dialect/StoreError.h"
#include "platform/runtime/Files.h"
#include "platform/runtime/Literals.h"

namespace akarix {

Workspace& DBEngine::Workspaces(int index) {
    static Workspace standard;
    if (index != 0) throw StoreError(3265, QString(), u"DAO.DbEngine"_s);
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
