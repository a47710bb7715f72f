#include "platform/print/FileName.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "platform/runtime/Literals.h"

namespace akarix {

QString NumberedPath(const QString& path, int number) {
    const QFileInfo file(path);
    const QString suffix = file.suffix().isEmpty() ? QString() : QLatin1Char('.') + file.suffix();
    const QString name = u"%1 (%2)%3"_s.arg(file.completeBaseName()).arg(number).arg(suffix);
    return file.dir().filePath(name);
}

QString FreePath(const QString& path) {
    QString free = path;
    for (int number = 2; QFileInfo::exists(free); ++number)
        free = NumberedPath(path, number);
    return free;
}

QString SafeFileName(const QString& name) {
    QString safe = name.trimmed();
    const QString forbidden = u"\\/:*?\"<>|"_s;
    for (QChar& letter : safe) {
        if (letter < QLatin1Char(' ')) letter = QLatin1Char(' ');
        if (forbidden.contains(letter)) letter = QChar(letter.unicode() + 0xFEE0);
    }
    return safe;
}

QString DocumentFolder() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QFileInfo folder(documents);
    return !documents.isEmpty() && folder.isDir() && folder.isWritable() ? documents : QDir::currentPath();
}

QString WhyNotWritable(const QString& path) {
    const QFileInfo file(path);
    const QFileInfo folder(file.absolutePath());
    if (path.trimmed().isEmpty() || file.fileName().isEmpty()) return u"ファイル名を入力して下さい。"_s;
    if (!folder.isDir()) return u"フォルダ '%1' がありません。"_s.arg(folder.filePath());
    if (file.isDir()) return u"'%1' はフォルダです。"_s.arg(file.filePath());
    if (!folder.isWritable()) return u"フォルダ '%1' に書き込めません。"_s.arg(folder.filePath());
    if (file.exists() && !file.isWritable())
        return u"ファイル '%1' は書き込み禁止です。"_s.arg(file.filePath());
    return {};
}

}  // namespace akarix
