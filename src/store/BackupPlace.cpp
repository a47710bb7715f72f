#include "store/BackupPlace.h"

#include <QDir>
#include <QFile>
#include <QScopeGuard>

#include "platform/runtime/Files.h"
#include "platform/runtime/Literals.h"
#include "values/NumStr.h"

namespace akarix {

QString BackupPlaceFile() {
    const QString name = u"BKPath"_s;
    if (QFile::exists(name)) return name;
    const QString found = Dir(name);
    return found.isEmpty() ? name : found;
}

QString ReadBackupPlace() {
    const int number = FreeFile();
    Open(BackupPlaceFile(), OpenMode::Input, number);
    const auto close = qScopeGuard([number] { Close(number); });
    return Input(number);
}

void WriteBackupPlace(const QString& place) {
    const int number = FreeFile();
    Open(BackupPlaceFile(), OpenMode::Output, number);
    Print(number, place);
    Close(number);
}

QString BackupFolder(const QString& place) {
    QString folder = place;
    while (folder.endsWith(u'\\') || folder.endsWith(u'/'))
        folder.chop(1);
    // A place written the drives' way goes on in it; any other ends as the machine's own paths do.
    const bool likeDrives = folder.contains(u'\\') || !DriveRoot(place).isEmpty();
    return folder + (likeDrives ? QChar(u'\\') : QDir::separator());
}

QString BackupCopy(const QString& place, int weekday) {
    return BackupFolder(place) + u"Akarix"_s + NumStr(weekday) + u".MDB"_s;
}

}  // namespace akarix
