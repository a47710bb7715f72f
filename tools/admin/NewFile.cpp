#include "admin/NewFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <filesystem>
#include <system_error>

#include "admin/FileClaim.h"
#include "platform/runtime/ByteFile.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix::admin {

QString refusal(const QString& path, bool force, const FileClaim& claim) {
    const QFileInfo file(path);
    if (file.isDir()) return QStringLiteral("%1 はフォルダです。").arg(path);
    if (!file.absoluteDir().exists())
        return QStringLiteral("フォルダがありません: %1").arg(file.absolutePath());
    if (file.exists() && !force) {
        return QStringLiteral("%1 は既にあります。作り直すときは --force を付けてください。").arg(path);
    }
    return claim.refusal();
}

void replaceFile(const QString& name, const std::function<void(const QString& working)>& make) {
    // Behind a link it is the linked file that is replaced, not the link.
    const QFileInfo file(name);
    const QString path = file.isSymLink() && file.exists() ? file.canonicalFilePath() : name;
    const QString working = path + QStringLiteral(".new");
    QFile::remove(working);
    QFile::remove(working + QStringLiteral("-journal"));
    try {
        make(working);
    } catch (...) {
        QFile::remove(working);
        throw;
    }
    // The old file's journal does not belong to the new one.
    QFile::remove(path + QStringLiteral("-journal"));
    std::error_code problem;
    std::filesystem::rename(working.toStdU16String(), path.toStdU16String(), problem);
    if (problem) throw RuntimeError(75);
}

void copyFile(const QString& from, const QString& to) {
    try {
        ByteFile source(from, ByteFile::Mode::Read);
        ByteFile target(to, ByteFile::Mode::Write);
        for (QByteArray part = source.read(); !part.isEmpty(); part = source.read())
            target.write(part);
        target.commit();
    } catch (...) {
        QFile::remove(to);
        throw;
    }
}

}  // namespace akarix::admin
