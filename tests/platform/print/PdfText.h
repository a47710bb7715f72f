#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QRectF>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include "platform/runtime/Literals.h"

namespace akarix {

/// What the reader of PDF files writes about one.
inline QString PdfToText(const QString& option, const QString& path) {
    QProcess tool;
    tool.start(u"pdftotext"_s, {option, path, u"-"_s});
    tool.waitForFinished();
    return QString::fromUtf8(tool.readAllStandardOutput());
}

/// The text of a PDF file page by page, without white space: text may be split where the script changes.
inline QStringList PdfPages(const QString& path) {
    QStringList pages = PdfToText(u"-raw"_s, path).split(u'\f');
    if (!pages.isEmpty()) pages.removeLast();  // each page ends with the mark
    for (QString& page : pages)
        page.remove(u' ').remove(u'\n');
    return pages;
}

/// The box of the first such word in points from the paper's corner; empty, and a failure of the test, when
/// there is none.
inline QRectF PdfBox(const QString& path, const QString& word) {
    static const QRegularExpression boxes(
        u"<word xMin=\"([\\d.]+)\" yMin=\"([\\d.]+)\" xMax=\"([\\d.]+)\" yMax=\"([\\d.]+)\">(.*)</word>"_s);
    auto found = boxes.globalMatch(PdfToText(u"-bbox"_s, path));
    while (found.hasNext()) {
        const auto match = found.next();
        const auto number = [&](int n) { return match.captured(n).toDouble(); };
        if (match.captured(5) == word)
            return QRectF(QPointF(number(1), number(2)), QPointF(number(3), number(4)));
    }
    ADD_FAILURE() << "not on the page: " << word.toStdString();
    return {};
}

}  // namespace akarix
