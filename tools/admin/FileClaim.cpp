#include "admin/FileClaim.h"

#include <QFileInfo>

#include "platform/forms/SingleInstance.h"
#include "platform/jet/RawFile.h"
#include "platform/runtime/FileHolders.h"
#include "platform/runtime/RuntimeError.h"
#include "store/dbAccess.h"

namespace akarix::admin {

namespace {

/// A desk across the network shows itself only while it writes.
bool isLocked(const QString& path) {
    if (!QFileInfo(path).isWritable()) return false;  // takes no lock
    try {
        RawFile file(path);
        return !file.lock();
    } catch (const RuntimeError&) {
        return false;  // whoever opens it next is told
    }
}

/// The program of another user keeps its open files to itself, but not where it runs.
bool programHas(const QString& path) {
    const std::optional<QString> folder = SingleInstance::RunningIn();
    if (!folder) return false;
    const QFileInfo its(*folder + u'/' + DatabaseName());
    return folder->isEmpty() || its.canonicalFilePath() == QFileInfo(path).canonicalFilePath();
}

}  // namespace

QString holderOf(const QString& path) {
    if (!QFileInfo(path).isFile()) return {};
    const QStringList holders = FileHolders(path).value_or(QStringList());
    if (!holders.isEmpty()) {
        return QStringLiteral("%1 は使用中です: %2").arg(path, holders.join(QStringLiteral("、")));
    }
    if (programHas(path)) return QStringLiteral("Akarix が動いています。");
    if (isLocked(path)) return QStringLiteral("%1 はほかの机で使用中です。").arg(path);
    return {};
}

FileClaim::FileClaim(const QString& path) : claim_(path) {
    if (!claim_.holder().isEmpty()) {
        refusal_ = QStringLiteral("%1 は使用中です: %2").arg(path, claim_.holder());
    } else {
        refusal_ = holderOf(path);
    }
    if (!refusal_.isEmpty()) refusal_ += QStringLiteral("\n終わらせてから、もう一度実行してください。");
}

}  // namespace akarix::admin
