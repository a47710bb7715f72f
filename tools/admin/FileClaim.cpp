#include "admin/FileClaim.h"

#include <QFileInfo>

#include "platform/jet/RawFile.h"
#include "platform/runtime/FileHolders.h"
#include "platform/runtime/RuntimeError.h"

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

}  // namespace

QString holderOf(const QString& path, bool programRuns) {
    if (!QFileInfo(path).isFile()) return {};
    const auto holders = FileHolders(path);
    if (holders && !holders->isEmpty()) {
        return QStringLiteral("%1 は使用中です: %2").arg(path, holders->join(QStringLiteral("、")));
    }
    if (!holders && programRuns) return QStringLiteral("Akarix が動いています。");
    if (isLocked(path)) return QStringLiteral("%1 はほかの机で使用中です。").arg(path);
    return {};
}

FileClaim::FileClaim(const QString& path) : refusal_(holderOf(path, guard_.PrevInstance())) {
    if (!refusal_.isEmpty())
        refusal_ += QStringLiteral("\nAkarix を終わらせてから、もう一度実行してください。");
}

}  // namespace akarix::admin
