#include "debit/DebitPath.h"

#include "platform/runtime/MkDir.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

namespace {

constexpr int kRoot = 2;  // the place of "\" in "X:\"

qsizetype endOfFolder(const QString& fName) {
    if (fName.size() <= kRoot || fName[kRoot] != u'\\') return -1;
    return fName.indexOf(u'\\', kRoot + 1);
}

}  // namespace

QString FloppyFolder() {
    return QStringLiteral("A:\\");
}

DebitPath SplitDebitPath(const QString& fName) {
    const qsizetype end = endOfFolder(fName);
    if (end < 0) return {FloppyFolder(), fName};
    return {fName.left(end + 1), fName.mid(end + 1)};
}

DebitPath PrepareDebitPath(const QString& fName) {
    DebitPath path = SplitDebitPath(fName);
    if (endOfFolder(fName) < 0) return path;
    try {
        MkDir(path.folder);
    } catch (const RuntimeError&) {  // NOLINT(bugprone-empty-catch): it exists, as a rule
    }
    return path;
}

}  // namespace akarix
