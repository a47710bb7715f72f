#include "platform/runtime/Path.h"

namespace akarix {

QString LocalPath(const QString& path) {
    QString local = path;
    local.replace(u'\\', u'/');
#ifndef Q_OS_WIN
    const bool hasDrive = local.size() >= 2 && local[1] == u':' && local[0].isLetter();
    if (hasDrive) {
        QString below = local.mid(2);
        if (!below.startsWith(u'/')) below.prepend(u'/');
        local = QStringLiteral("Drive/") + local[0].toUpper() + below;
    }
#endif
    while (local.size() > 1 && local.endsWith(u'/') && !local.endsWith(QLatin1String(":/")))
        local.chop(1);
    return local;
}

}  // namespace akarix
