#include "platform/dao/DBEngine.h"

#include "platform/dao/Engines.h"
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
    RepairFile(LocalPath(name));
}

void DBEngine::CopyDatabase(const QString& name, const QString& to, Progress& progress) {
    OpenEngineAgain(LocalPath(name))->copyTo(LocalPath(to), progress);
}

}  // namespace akarix
