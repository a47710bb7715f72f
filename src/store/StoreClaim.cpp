#include "store/StoreClaim.h"

#include <QFile>
#include <QFileInfo>
#include <QSysInfo>

#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

/// Behind a link it is the linked file that is claimed.
QString MarkOf(const QString& path) {
    const QFileInfo file(path);
    return (file.exists() ? file.canonicalFilePath() : file.absoluteFilePath()) + u".lock"_s;
}

QString NameOf(const QLockFile& mark) {
    qint64 process = 0;
    QString machine;
    QString program;
    if (!mark.getLockInfo(&process, &machine, &program)) return u"?"_s;
    const QString place = machine == QSysInfo::machineHostName() ? QString() : u'、' + machine;
    return u"%1 (%2%3)"_s.arg(program).arg(process).arg(place);
}

}  // namespace

StoreClaim::StoreClaim(const QString& path, std::chrono::milliseconds patience) : mark_(MarkOf(path)) {
    mark_.setStaleLockTime(0);  // the dead are known by their number; a long work is not dead
    if (mark_.tryLock(static_cast<int>(patience.count()))) {
        // Whoever comes next may have to take a dead user's mark away.
        constexpr QFile::Permissions forAll = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup |
                                              QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
        QFile::setPermissions(mark_.fileName(), forAll);
    } else if (mark_.error() == QLockFile::LockFailedError) {
        holder_ = NameOf(mark_);
    }
}

}  // namespace akarix
