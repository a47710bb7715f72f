#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

namespace akarix {

/// The text of a PDF file page by page, without white space: text may be split where the script changes.
inline QStringList PdfPages(const QString& path) {
    QProcess tool;
    tool.start(QStringLiteral("pdftotext"), {QStringLiteral("-raw"), path, QStringLiteral("-")});
    tool.waitForFinished();
    QStringList pages = QString::fromUtf8(tool.readAllStandardOutput()).split(QLatin1Char('\f'));
    if (!pages.isEmpty()) pages.removeLast();  // each page ends with the mark
    for (QString& page : pages) {
        page.remove(QLatin1Char(' ')).remove(QLatin1Char('\n'));
    }
    return pages;
}

}  // namespace akarix
