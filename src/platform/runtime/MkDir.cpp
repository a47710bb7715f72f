#include "platform/runtime/MkDir.h"

#include <QFileInfo>
#include <filesystem>

#include "platform/runtime/FileError.h"
#include "platform/runtime/Path.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

void MkDir(const QString& path) {
    RequireFolder(path);
    const QString local = LocalPath(path);
    if (local.isEmpty() || QFileInfo::exists(local)) throw RuntimeError(75);
    std::error_code error;
    std::filesystem::create_directory(std::filesystem::path(local.toStdU16String()), error);
    if (error) throw RuntimeError(FileErrorNumber(error.default_error_condition().value()));
}

}  // namespace akarix
