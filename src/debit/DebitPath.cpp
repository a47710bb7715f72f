#include "debit/DebitPath.h"

#include "platform/runtime/Files.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

namespace {

constexpr int kRoot = 2;  // the place of "\" in "X:\"

qsizetype EndOfFolder(const QString& fName) {
    if (fName.size() <= kRoot || fName[kRoot] != u'\\') return -1;
    return fName.indexOf(u'\\', kRoot + 1);
}

}  // namespace

QString FloppyFolder() {
    return u"A:\\"_s;
}

DebitPath SplitDebitPath(const QString& fName) {
    const qsizetype end = EndOfFolder(fName);
    if (end < 0) return {FloppyFolder(), fName};
    return {fName.left(end + 1), fName.mid(end + 1)};
}

DebitPath PrepareDebitPath(const QString& fName) {
    DebitPath path = SplitDebitPath(fName);
    if (EndOfFolder(fName) < 0) return path;
    try {
        MkDir(path.folder);
    } catch (const RuntimeError&) {  // NOLINT(bugprone-empty-catch): it exists, as a rule
    }
    return path;
}

}  // namespace akarix
