#include "admin/NewFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <filesystem>
#include <system_error>

#include "admin/Command.h"
#include "admin/FileClaim.h"
#include "platform/runtime/ByteFile.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"
#include "store/dbAccess.h"

namespace akarix::admin {

QString MakeStore(const QCommandLineParser& given, const std::function<void(const QString& working)>& make) {
    const QString path = given.positionalArguments().value(0, DatabaseName());
    const QFileInfo file(path);
    if (file.isDir()) throw Stop{Failed, u"%1 はフォルダです。"_s.arg(path)};
    if (!file.absoluteDir().exists())
        throw Stop{Failed, u"フォルダがありません: %1"_s.arg(file.absolutePath())};
    if (file.exists() && !given.isSet(u"force"_s))
        throw Stop{Failed, u"%1 は既にあります。作り直すときは --force を付けてください。"_s.arg(path)};
    const FileClaim claim(path);
    ReplaceFile(path, make);
    return path;
}

void ReplaceFile(const QString& name, const std::function<void(const QString& working)>& make) {
    // Behind a link it is the linked file that is replaced, not the link.
    const QFileInfo file(name);
    const QString path = file.isSymLink() && file.exists() ? file.canonicalFilePath() : name;
    const QString working = path + u".new"_s;
    QFile::remove(working);
    QFile::remove(working + u"-journal"_s);
    try {
        make(working);
    } catch (...) {
        QFile::remove(working);
        throw;
    }
    // The old file's journal does not belong to the new one.
    QFile::remove(path + u"-journal"_s);
    std::error_code problem;
    std::filesystem::rename(working.toStdU16String(), path.toStdU16String(), problem);
    if (problem) throw RuntimeError(75);
}

void CopyFile(const QString& from, const QString& to) {
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
