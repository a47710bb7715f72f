#include "admin/FileClaim.h"

#include <QFileInfo>

#include "admin/Command.h"
#include "platform/cipher/RawFile.h"
#include "platform/forms/SingleInstance.h"
#include "platform/runtime/FileHolders.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"
#include "store/dbAccess.h"

namespace akarix::admin {

namespace {

/// A desk across the network shows itself only while it writes.
bool IsLocked(const QString& path) {
    if (!QFileInfo(path).isWritable()) return false;  // takes no lock
    try {
        RawFile file(path);
        return !file.lock();
    } catch (const RuntimeError&) {
        return false;  // whoever opens it next is told
    }
}

/// The program of another user keeps its open files to itself, but not where it runs.
bool ProgramHas(const QString& path) {
    const std::optional<QString> folder = SingleInstance::RunningIn();
    if (!folder) return false;
    const QFileInfo its(*folder + u'/' + DatabaseName());
    return folder->isEmpty() || its.canonicalFilePath() == QFileInfo(path).canonicalFilePath();
}

}  // namespace

QString HolderOf(const QString& path) {
    if (!QFileInfo(path).isFile()) return {};
    const QStringList holders = FileHolders(path).value_or(QStringList());
    if (!holders.isEmpty()) return u"%1 は使用中です: %2"_s.arg(path, holders.join(u"、"_s));
    if (ProgramHas(path)) return u"Akarix が動いています。"_s;
    if (IsLocked(path)) return u"%1 はほかの机で使用中です。"_s.arg(path);
    return {};
}

FileClaim::FileClaim(const QString& path) : claim_(path) {
    const QString holder =
        claim_.holder().isEmpty() ? HolderOf(path) : u"%1 は使用中です: %2"_s.arg(path, claim_.holder());
    if (!holder.isEmpty()) throw Stop{Failed, holder + u"\n終わらせてから、もう一度実行してください。"_s};
}

}  // namespace akarix::admin
