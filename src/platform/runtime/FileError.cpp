#include "platform/runtime/ByteFile.h"

#include <QFileInfo>
#include <cerrno>

#include "platform/runtime/Files.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

int FileErrorNumber(int systemError) {
    switch (systemError) {
        case ENOENT:
            return 53;
        case ENOSPC:
#ifdef EDQUOT
        case EDQUOT:
#endif
        case EFBIG:
            return 61;
        case EMFILE:
        case ENFILE:
            return 67;
        case EROFS:
        case EBUSY:
        case ETXTBSY:
            return 70;
        case ENXIO:
        case ENODEV:
#ifdef ENOMEDIUM
        case ENOMEDIUM:
#endif
            return 71;
        case ENOTDIR:
            return 76;
        case EIO:
            return 57;
        case ENAMETOOLONG:
        case EINVAL:
            return 52;
        case ENOMEM:
            return 7;
        default:
            return 75;
    }
}

void RequireDrive(const QString& path) {
    const QString root = DriveRoot(path);
    if (!root.isEmpty() && !QFileInfo(root).isDir()) throw RuntimeError(71);
}

void RequireFolder(const QString& path) {
    RequireDrive(path);
    if (!QFileInfo(QFileInfo(LocalPath(path)).path()).isDir()) throw RuntimeError(76);
}

}  // namespace akarix
