#include "platform/runtime/Dir.h"

#include <QDir>
#include <QRegularExpression>

#include "platform/runtime/FileError.h"
#include "platform/runtime/Path.h"

namespace akarix {

namespace {

QRegularExpression nameFilter(const QString& pattern) {
    QString form;
    for (QChar c : pattern == QLatin1String("*.*") ? QStringLiteral("*") : pattern) {
        if (c == u'*') {
            form += QLatin1String(".*");
        } else if (c == u'?') {
            form += u'.';
        } else {
            form += QRegularExpression::escape(QString(c));
        }
    }
    return QRegularExpression(QRegularExpression::anchoredPattern(form),
                              QRegularExpression::CaseInsensitiveOption);
}

}  // namespace

QString Dir(const QString& pattern) {
    requireDrive(pattern);
    QString path = pattern;
    path.replace(u'\\', u'/');
    const qsizetype nameAt = qMax(path.lastIndexOf(u'/'), path.lastIndexOf(u':')) + 1;
    const QString name = path.mid(nameAt);
    const QString folder = nameAt == 0 ? QStringLiteral(".") : LocalPath(path.left(nameAt));
    const QRegularExpression filter = nameFilter(name.isEmpty() ? QStringLiteral("*") : name);
    const QStringList names = QDir(folder).entryList(QDir::Files, QDir::Name | QDir::IgnoreCase);
    for (const QString& candidate : names) {
        if (filter.match(candidate).hasMatch()) return candidate;
    }
    return {};
}

}  // namespace akarix
