#include "platform/dao/LastPassword.h"

#include <QFileInfo>
#include <QHash>

namespace akarix {
namespace {

QHash<QString, QString>& Passwords() {
    static QHash<QString, QString> passwords;
    return passwords;
}

QString Key(const QString& path) {
    return QFileInfo(path).absoluteFilePath();
}

}  // namespace

void RememberPassword(const QString& path, const QString& password) {
    Passwords().insert(Key(path), password);
}

QString LastPassword(const QString& path) {
    return Passwords().value(Key(path));
}

}  // namespace akarix
