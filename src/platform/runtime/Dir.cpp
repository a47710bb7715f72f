#include "platform/runtime/Dir.h"

#include <QDir>
#include <QRegularExpression>

#include "platform/runtime/FileError.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/Path.h"

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

}  // namespace akarix
