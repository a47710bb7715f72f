#include "platform/sheet/TextLines.h"

#include <QTextBoundaryFinder>

namespace akarix {
namespace {

bool IsWordLetter(QChar letter) {
    return letter.unicode() > 0x20 && letter.unicode() < 0x250;
}

}  // namespace

QStringList TextLines(const QString& text, double room, const TextMeasure& measure) {
    QStringList lines;
    qsizetype start = 0;  // of the paragraph
    for (const QString& paragraph : text.split(QLatin1Char('\n'))) {
        QTextBoundaryFinder finder(QTextBoundaryFinder::Line, paragraph);
        QString line;
        for (qsizetype from = 0, to = finder.toNextBoundary(); to > 0;
             from = to, to = finder.toNextBoundary()) {
            QString piece = paragraph.mid(from, to - from);
            // Blanks at a line's end need no room.
            if (!line.isEmpty() && measure(start + from - line.size(), (line + piece).trimmed()) > room) {
                lines += line;
                line.clear();
            }
            // As many letters as fit, at least one.
            while (measure(start + to - piece.size(), piece.trimmed()) > room && piece.size() > 1) {
                qsizetype length = 1;
                while (measure(start + to - piece.size(), piece.left(length + 1)) <= room)
                    ++length;
                lines += piece.left(length);
                piece.remove(0, length);
            }
            line += piece;
        }
        lines += line;
        start += paragraph.size() + 1;
    }
    return lines;
}

QStringList TextPieces(const QString& text) {
    QStringList pieces;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    for (qsizetype from = 0, to = finder.toNextBoundary(); to > 0; from = to, to = finder.toNextBoundary()) {
        const QString piece = text.mid(from, to - from);
        const bool word = IsWordLetter(piece.front());
        if (word && from > 0 && IsWordLetter(text.at(from - 1)))
            pieces.last() += piece;
        else if (!piece.front().isSpace())
            pieces += piece;
    }
    return pieces;
}

}  // namespace akarix
