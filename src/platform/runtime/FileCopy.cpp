#include "platform/runtime/FileCopy.h"

#include <QFileInfo>
#include <filesystem>

#include "platform/runtime/ByteFile.h"
#include "platform/runtime/FileError.h"
#include "platform/runtime/FileTable.h"
#include "platform/runtime/Path.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

namespace {

std::filesystem::path machinePath(const QString& local) {
    return local.toStdU16String();
}

void copyBytes(const QString& from, const QString& to) {
    ByteFile source(from, ByteFile::Mode::Read);
    ByteFile target(to, ByteFile::Mode::Write);
    for (QByteArray part = source.read(); !part.isEmpty(); part = source.read())
        target.write(part);
    target.commit();
}

/// Writes beside the target and puts the copy in its place when it is whole: the older copy of this weekday
/// must not be lost to a copy that breaks off.
void copyBeside(const QString& from, const QString& to) {
    const QString beside = to + QStringLiteral(".new");
    std::error_code ignored;
    try {
        copyBytes(from, beside);
    } catch (const RuntimeError&) {
        std::filesystem::remove(machinePath(beside), ignored);
        throw;
    }
    std::error_code error;
    std::filesystem::rename(machinePath(beside), machinePath(to), error);
    if (!error) return;
    std::filesystem::remove(machinePath(beside), ignored);
    throw RuntimeError(fileErrorNumber(error.default_error_condition().value()));
}

}  // namespace

void FileCopy(const QString& from, const QString& to) {
    requireFolder(from);
    requireFolder(to);
    const QString source = LocalPath(from);
    const QString target = LocalPath(to);
    if (!QFileInfo(source).isFile()) throw RuntimeError(53);
    const QFileInfo targetInfo(target);
    if (targetInfo.isDir()) throw RuntimeError(75);
    const FileTable& table = FileTable::instance();
    if (table.holds(source) || table.holds(target) || QFileInfo(source) == targetInfo) throw RuntimeError(70);
    if (!targetInfo.exists()) return copyBeside(source, target);
    if (!targetInfo.isWritable()) throw RuntimeError(75);
    try {
        copyBeside(source, targetInfo.canonicalFilePath());
    } catch (const RuntimeError& error) {
        // Room for one copy only, or a folder that takes no new files: overwrite what stands there.
        if (error.number() != 61 && error.number() != 75) throw;
        copyBytes(source, target);
    }
}

}  // namespace akarix
