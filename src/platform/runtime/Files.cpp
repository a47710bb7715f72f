#include "platform/runtime/Files.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <filesystem>

#include "platform/runtime/ByteFile.h"
#include "platform/runtime/FileTable.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"
#include "platform/runtime/Text.h"

namespace akarix {

namespace {

QRegularExpression NameFilter(const QString& pattern) {
    QString form;
    for (QChar c : pattern == QLatin1String("*.*") ? u"*"_s : pattern)
        if (c == u'*')
            form += QLatin1String(".*");
        else if (c == u'?')
            form += u'.';
        else
            form += QRegularExpression::escape(QString(c));
    return QRegularExpression(QRegularExpression::anchoredPattern(form),
                              QRegularExpression::CaseInsensitiveOption);
}

}  // namespace

void Open(const QString& path, OpenMode mode, int number) {
    FileTable::instance().open(path, mode, number);
}

void Close(int number) {
    FileTable::instance().close(number);
}

int FreeFile() {
    return FileTable::instance().lowestFree();
}

void Print(int number, const QString& text, bool lineEnd) {
    ByteFile& file = FileTable::instance().forOutput(number);
    QByteArray bytes = ToCodePage932(text);
    if (lineEnd) bytes += "\r\n";
    file.write(bytes);
}

QString Dir(const QString& pattern) {
    RequireDrive(pattern);
    QString path = pattern;
    path.replace(u'\\', u'/');
    const qsizetype nameAt = qMax(path.lastIndexOf(u'/'), path.lastIndexOf(u':')) + 1;
    const QString name = path.mid(nameAt);
    const QString folder = nameAt == 0 ? u"."_s : LocalPath(path.left(nameAt));
    const QRegularExpression filter = NameFilter(name.isEmpty() ? u"*"_s : name);
    const QStringList names = QDir(folder).entryList(QDir::Files, QDir::Name | QDir::IgnoreCase);
    for (const QString& candidate : names)
        if (filter.match(candidate).hasMatch()) return candidate;
    return {};
}

void MkDir(const QString& path) {
    RequireFolder(path);
    const QString local = LocalPath(path);
    if (local.isEmpty() || QFileInfo::exists(local)) throw RuntimeError(75);
    std::error_code error;
    std::filesystem::create_directory(std::filesystem::path(local.toStdU16String()), error);
    if (error) throw RuntimeError(FileErrorNumber(error.default_error_condition().value()));
}

}  // namespace akarix
