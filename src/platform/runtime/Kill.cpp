#include "platform/runtime/Kill.h"

#include <QFileInfo>
#include <filesystem>

#include "platform/runtime/FileError.h"
#include "platform/runtime/FileTable.h"
#include "platform/runtime/Path.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

void Kill(const QString& path) {
    requireFolder(path);
    const QString local = LocalPath(path);
    if (!QFileInfo(local).isFile()) throw RuntimeError(53);
    if (FileTable::instance().holds(local)) throw RuntimeError(70);
    std::error_code error;
    std::filesystem::remove(std::filesystem::path(local.toStdU16String()), error);
    if (error) throw RuntimeError(fileErrorNumber(error.default_error_condition().value()));
}

}  // namespace akarix
