#include "platform/runtime/Files.h"

#include <QDir>

#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

bool HasDrive(const QString& path) {
    return path.size() >= 2 && path[1] == u':' && path[0].isLetter();
}

}  // namespace

QString DriveRoot(const QString& path) {
    if (!HasDrive(path)) return {};
#ifdef Q_OS_WIN
    return path.left(2) + u'/';
#else
    return u"Drive/"_s + path[0].toUpper();
#endif
}

QString BaseFolder() {
#ifdef Q_OS_WIN
    return u"c:\\"_s;
#else
    return QDir::homePath() + u'/';
#endif
}

QString LocalPath(const QString& path) {
    QString local = path;
    local.replace(u'\\', u'/');
#ifndef Q_OS_WIN
    if (HasDrive(local)) {
        QString below = local.mid(2);
        if (!below.startsWith(u'/')) below.prepend(u'/');
        local = DriveRoot(local) + below;
    }
#endif
    while (local.size() > 1 && local.endsWith(u'/') && !local.endsWith(QLatin1String(":/")))
        local.chop(1);
    return local;
}

}  // namespace akarix
