#include "sample/OpenStore.h"

#include "platform/dao/DBEngine.h"
#include "store/dbAccess.h"

namespace akarix::sample {

OpenStore::OpenStore(const QString& path, bool readOnly) {
    gWs = &DBEngine::Workspaces(0);
    gDb = gWs->OpenDatabase(path, false, readOnly, ConnectText());
}

OpenStore::~OpenStore() {
    CloseDb();
}

}  // namespace akarix::sample
