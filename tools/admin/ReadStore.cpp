#include "admin/ReadStore.h"

#include "platform/dao/DBEngine.h"
#include "platform/runtime/RuntimeError.h"
#include "store/dbAccess.h"

namespace akarix::admin {

ReadStore::ReadStore(const QString& path)
    : db_(DBEngine::Workspaces(0).OpenDatabase(path, false, true, ConnectText())) {}

ReadStore::~ReadStore() {
    try {
        db_->Close();
    } catch (const RuntimeError&) {
        return;  // nothing was written
    }
}

}  // namespace akarix::admin
