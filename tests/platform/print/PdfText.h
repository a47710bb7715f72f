#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QRectF>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <utility>
#include <vector>

#include "platform/runtime/Literals.h"

namespace akarix {

/// The text of a PDF file page by page, without white space: text may be split where the script changes.
inline QStringList PdfPages(const QString& path) {
    QProcess tool;
    tool.start(u"pdftotext"_s, {u"-raw"_s, path, u"-"_s});
    tool.waitForFinished();
    QStringList pages = QString::fromUtf8(tool.readAllStandardOutput()).split(QLatin1Char('\f'));
    if (!pages.isEmpty()) pages.removeLast();  // each page ends with the mark
    for (QString& page : pages)
        page.remove(QLatin1Char(' ')).remove(QLatin1Char('\n'));
    return pages;
}

/// The words of a PDF file with their boxes in points from the paper's corner.
inline std::vector<std::pair<QString, QRectF>> PdfWords(const QString& path) {
    QProcess tool;
    tool.start(u"pdftotext"_s, {u"-bbox"_s, path, u"-"_s});
    tool.waitForFinished();
    static const QRegularExpression word(
        u"<word xMin=\"([\\d.]+)\" yMin=\"([\\d.]+)\" xMax=\"([\\d.]+)\" yMax=\"([\\d.]+)\">(.*)</word>"_s);
    auto found = word.globalMatch(QString::fromUtf8(tool.readAllStandardOutput()));
    std::vector<std::pair<QString, QRectF>> words;
    while (found.hasNext()) {
        const auto match = found.next();
        const auto number = [&](int n) { return match.captured(n).toDouble(); };
        words.emplace_back(match.captured(5),
                           QRectF(QPointF(number(1), number(2)), QPointF(number(3), number(4))));
    }
    return words;
}

/// The box of the first such word; empty, and a failure of the test, when there is none.
inline QRectF PdfBox(const QString& path, const QString& word) {
    for (const auto& [text, box] : PdfWords(path))
        if (text == word) return box;
    ADD_FAILURE() << "not on the page: " << word.toStdString();
    return {};
}

}  // namespace akarix
