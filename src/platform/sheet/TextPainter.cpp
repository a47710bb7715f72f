#include "platform/sheet/TextPainter.h"

#include <QTextBoundaryFinder>
#include <algorithm>
#include <cmath>

#include "platform/print/PaperFont.h"
#include "platform/sheet/SheetLayout.h"

namespace akarix {
namespace {

constexpr double SidePadding = 1.8 * TwipsPerPoint;
constexpr double NumberPadding =
    0.5 * TwipsPerPoint;  // a figure may come nearer to the edge before it is too wide
constexpr double EdgePadding = 0.5 * TwipsPerPoint;  // above and below
constexpr double IndentWidth = 9 * TwipsPerPoint;
constexpr int Upright = 255;
/// Figures of the substitute fonts are up to 15 % wider than those the templates were made with.
constexpr double NarrowestLetters = 0.86;

PaperFont& FontOf(const SheetFont& font, double size) {
    return FontOnPaper({font.name, size, font.bold, font.italic, font.underline, font.strikeout});
}

HorizontalAlign Resolved(HorizontalAlign align, bool number) {
    switch (align) {
        case HorizontalAlign::General:
            return number ? HorizontalAlign::Right : HorizontalAlign::Left;
        case HorizontalAlign::Justify:
        case HorizontalAlign::Fill:
            return HorizontalAlign::Left;
        case HorizontalAlign::CenterAcross:
            return HorizontalAlign::Center;
        default:
            return align;
    }
}

bool Wraps(const CellStyle& style) {
    return style.wrap || style.horizontal == HorizontalAlign::Justify ||
           style.vertical == VerticalAlign::Justify;
}

double BlockTop(const QRectF& box, VerticalAlign align, double height) {
    switch (align) {
        case VerticalAlign::Top:
        case VerticalAlign::Justify:
            return box.top() + EdgePadding;
        case VerticalAlign::Center:
        case VerticalAlign::Distributed:
            return box.center().y() - height / 2;
        case VerticalAlign::Bottom:
            break;
    }
    return box.bottom() - EdgePadding - height;
}

bool IsWordLetter(QChar letter) {
    return letter.unicode() > 0x20 && letter.unicode() < 0x250;
}

/// The pieces that distributed text keeps together: a Japanese letter each, a western word.
QStringList Pieces(const QString& text) {
    QStringList pieces;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    for (qsizetype from = 0, to = finder.toNextBoundary(); to > 0; from = to, to = finder.toNextBoundary()) {
        const QString piece = text.mid(from, to - from);
        const bool word = IsWordLetter(piece.front());
        if (word && from > 0 && IsWordLetter(text.at(from - 1))) {
            pieces.last() += piece;
        } else if (!piece.front().isSpace()) {
            pieces += piece;
        }
    }
    return pieces;
}

class TextSetter {
 public:
    TextSetter(QPainter& painter, const CellStyle& style, const ShownText& shown)
        : painter_(painter),
          style_(style),
          shown_(shown),
          box_(shown.box),
          font_(&FontOf(style.font, style.font.size)),
          align_(Resolved(style.horizontal, shown.number)) {}

    void paint() {
        painter_.setPen(shown_.color.isValid() ? shown_.color : style_.font.color);
        if (style_.rotation == Upright) {
            paintUpright();
        } else if (style_.rotation != 0) {
            paintRotated();
        } else {
            paintLines();
        }
    }

 private:
    double indent() const { return style_.indent * IndentWidth; }
    double room() const {
        const bool bothSides = align_ == HorizontalAlign::Distributed;
        return box_.width() - 2 * SidePadding - (bothSides ? 2 : 1) * indent();
    }

    void paintLines() {
        QStringList lines;
        if (!shown_.number && (Wraps(style_) || align_ == HorizontalAlign::Distributed)) {
            lines = WrapText(shown_.text, style_.font, room());
        } else {
            QString line = shown_.text;
            lines += line.remove(QLatin1Char('\n'));
        }
        if (style_.horizontal == HorizontalAlign::Fill) repeatToFill(lines.first());
        double squeeze = 1;
        if (lines.size() == 1) squeeze = fitLine(lines.first());

        const double height = font_->em() * static_cast<double>(lines.size());
        double widest = 0;
        for (const QString& line : lines) {
            widest = std::max(widest, font_->width(line) * squeeze);
        }
        const QRectF spill(QPointF(std::min(box_.left(), shown_.spillLeft), box_.top()),
                           QPointF(std::max(box_.right(), shown_.spillRight), box_.bottom()));
        const bool clipped = height > box_.height() || widest > box_.width() - NumberPadding;
        if (clipped) {
            painter_.save();
            painter_.setClipRect(spill, Qt::IntersectClip);
        }
        painter_.setFont(font_->font());
        double top = BlockTop(box_, style_.vertical, height);
        double pitch = font_->em();
        if (style_.vertical == VerticalAlign::Distributed && lines.size() > 1 && height < box_.height()) {
            pitch += (box_.height() - height - 2 * EdgePadding) / static_cast<double>(lines.size() - 1);
            top = box_.top() + EdgePadding;
        }
        for (const QString& line : lines) {
            paintLine(line, top + font_->ascent(), squeeze);
            top += pitch;
        }
        if (clipped) painter_.restore();
    }

    void repeatToFill(QString& line) const {
        const double width = font_->width(line);
        if (width > 0) line = line.repeated(std::max(1, static_cast<int>(room() / width)));
    }

    /// Makes a line too wide fit where it must: a smaller font when the cell shrinks, narrower letters where
    /// a substitute font alone is the reason, marks for a number. Gives the factor to draw its width by.
    double fitLine(QString& line) {
        const double width = font_->width(line);
        if (style_.shrink && width > room()) {
            const double smaller = style_.font.size * std::max(0.05, room() / width);
            font_ = &FontOf(style_.font, std::floor(smaller * TwipsPerPoint) / TwipsPerPoint);
            return 1;
        }
        const double edges = shown_.number ? box_.width() : shown_.spillRight - shown_.spillLeft;
        const double most = edges - 2 * NumberPadding - indent();
        if (width <= most) return 1;
        if (font_->substituted() && width * NarrowestLetters <= most) return most / width;
        if (!shown_.number) return 1;
        const double mark = font_->width(QStringLiteral("#"));
        line = QString(std::max(1, static_cast<int>(most / mark)), QLatin1Char('#'));
        return 1;
    }

    void paintLine(const QString& line, double baseline, double squeeze) {
        const double width = font_->width(line) * squeeze;
        const double padding = std::clamp((box_.width() - indent() - width) / 2, NumberPadding, SidePadding);
        double x = 0;
        switch (align_) {
            case HorizontalAlign::Right:
                x = box_.right() - padding - indent() - width;
                break;
            case HorizontalAlign::Center:
                x = box_.center().x() - width / 2;
                break;
            case HorizontalAlign::Distributed:
                paintSpread(line, baseline);
                return;
            default:
                x = box_.left() + (squeeze < 1 || shown_.number ? padding : SidePadding) + indent();
        }
        drawAt({x, baseline}, line, squeeze);
    }

    void paintSpread(const QString& line, double baseline) {
        const QStringList pieces = Pieces(line);
        double total = 0;
        for (const QString& piece : pieces) {
            total += font_->width(piece);
        }
        if (pieces.size() < 2 || total > room()) {
            drawAt({box_.center().x() - font_->width(line) / 2, baseline}, line, 1);
            return;
        }
        const double gap = (room() - total) / static_cast<double>(pieces.size() - 1);
        double x = box_.left() + SidePadding + indent();
        for (const QString& piece : pieces) {
            drawAt({x, baseline}, piece, 1);
            x += font_->width(piece) + gap;
        }
    }

    void drawAt(QPointF at, const QString& text, double squeeze) {
        if (squeeze == 1) {
            painter_.drawText(at, text);
            return;
        }
        painter_.save();
        painter_.translate(at);
        painter_.scale(squeeze, 1);
        painter_.drawText(QPointF(), text);
        painter_.restore();
    }

    /// Text on its side is a level text in a turned box: what was along the page is now across.
    void paintRotated() {
        const bool up = style_.rotation > 0;
        ShownText turned = shown_;
        turned.box = QRectF(0, 0, box_.height(), box_.width());
        turned.spillLeft = 0;
        turned.spillRight = box_.height();
        CellStyle level = style_;
        level.rotation = 0;
        level.indent = 0;

        painter_.save();
        if (std::abs(style_.rotation) == 90) {
            painter_.setClipRect(box_, Qt::IntersectClip);
            painter_.translate(up ? box_.bottomLeft() : box_.topRight());
            level.horizontal = alongSide(up);
            level.vertical = acrossSide(up);
        } else {
            // A slant keeps the cell's own alignment about its middle.
            turned.box = QRectF(-box_.width() / 2, -box_.height() / 2, box_.width(), box_.height());
            turned.spillLeft = -box_.height();
            turned.spillRight = box_.height();
            painter_.translate(box_.center());
            level.horizontal = HorizontalAlign::Center;
            level.vertical = VerticalAlign::Center;
        }
        painter_.rotate(-style_.rotation);
        PaintText(painter_, level, turned);
        painter_.restore();
    }

    HorizontalAlign alongSide(bool up) const {
        switch (style_.vertical) {
            case VerticalAlign::Top:
                return up ? HorizontalAlign::Right : HorizontalAlign::Left;
            case VerticalAlign::Bottom:
                return up ? HorizontalAlign::Left : HorizontalAlign::Right;
            case VerticalAlign::Distributed:
            case VerticalAlign::Justify:
                return HorizontalAlign::Distributed;
            case VerticalAlign::Center:
                break;
        }
        return HorizontalAlign::Center;
    }
    VerticalAlign acrossSide(bool up) const {
        switch (style_.horizontal) {
            case HorizontalAlign::Left:
                return up ? VerticalAlign::Top : VerticalAlign::Bottom;
            case HorizontalAlign::Right:
                return up ? VerticalAlign::Bottom : VerticalAlign::Top;
            default:
                return VerticalAlign::Center;
        }
    }

    /// Upright letters from top to bottom, columns from right to left. The fonts have no own forms for
    /// vertical text: brackets and long marks are turned, points and commas moved into their corner.
    void paintUpright() {
        QStringList columns = shown_.text.split(QLatin1Char('\n'));
        const auto longest =
            std::max_element(columns.begin(), columns.end(), [](const auto& a, const auto& b) {
                return a.size() < b.size();
            })->size();
        const double column = font_->em() * static_cast<double>(longest);
        const double height = box_.height() - 2 * EdgePadding;
        if (style_.shrink && column > height) {
            font_ = &FontOf(style_.font,
                            std::floor(style_.font.size * height / column * TwipsPerPoint) / TwipsPerPoint);
        }
        const double em = font_->em();
        const double width = em * static_cast<double>(columns.size());
        double x = box_.center().x() + width / 2 - em;
        if (style_.horizontal == HorizontalAlign::Left) x = box_.left() + SidePadding + width - em;
        if (style_.horizontal == HorizontalAlign::Right) x = box_.right() - SidePadding - em;

        painter_.save();
        painter_.setClipRect(box_, Qt::IntersectClip);
        painter_.setFont(font_->font());
        for (const QString& letters : columns) {
            double pitch = em;
            double y = BlockTop(box_, style_.vertical, em * static_cast<double>(letters.size()));
            const bool spread =
                style_.vertical == VerticalAlign::Distributed || style_.vertical == VerticalAlign::Justify;
            if (spread && letters.size() > 1) {
                pitch = std::max(em, (height - em) / static_cast<double>(letters.size() - 1));
                y = box_.top() + EdgePadding;
            }
            for (const QChar letter : letters) {
                paintUprightLetter(letter, QRectF(x, y, em, em));
                y += pitch;
            }
            x -= em;
        }
        painter_.restore();
    }

    void paintUprightLetter(QChar letter, const QRectF& square) {
        static const QString turned =
            QStringLiteral("（）「」『』［］｛｝〈〉《》【】〔〕()[]{}<>ー～－―…‥-~=＝：；｜");
        static const QString cornered = QStringLiteral("、。，．");
        const QString text(letter);
        const double width = font_->width(text);
        if (turned.contains(letter)) {
            painter_.save();
            painter_.translate(square.center());
            painter_.rotate(90);
            painter_.drawText(QPointF(-width / 2, font_->ascent() - square.height() / 2), text);
            painter_.restore();
            return;
        }
        QPointF at(square.center().x() - width / 2, square.top() + font_->ascent());
        if (cornered.contains(letter)) at += QPointF(square.width() * 0.6, -square.height() * 0.6);
        painter_.drawText(at, text);
    }

    QPainter& painter_;
    const CellStyle& style_;
    const ShownText& shown_;
    QRectF box_;
    PaperFont* font_;
    HorizontalAlign align_;
};

/// As many letters as fit, at least one.
qsizetype FittingLength(PaperFont& font, const QString& text, double width) {
    qsizetype length = 1;
    while (length < text.size() && font.width(text.left(length + 1)) <= width) {
        ++length;
    }
    return length;
}

}  // namespace

bool MaySpill(const CellStyle& style, bool number) {
    return !number && !style.shrink && style.rotation == 0 && !Wraps(style) &&
           style.horizontal != HorizontalAlign::Fill && style.horizontal != HorizontalAlign::Distributed;
}

void PaintText(QPainter& painter, const CellStyle& style, const ShownText& shown) {
    if (!shown.text.isEmpty()) TextSetter(painter, style, shown).paint();
}

QStringList WrapText(const QString& text, const SheetFont& sheetFont, double width) {
    PaperFont& font = FontOf(sheetFont, sheetFont.size);
    QStringList lines;
    for (const QString& paragraph : text.split(QLatin1Char('\n'))) {
        QTextBoundaryFinder finder(QTextBoundaryFinder::Line, paragraph);
        QString line;
        for (qsizetype from = 0, to = finder.toNextBoundary(); to > 0;
             from = to, to = finder.toNextBoundary()) {
            QString piece = paragraph.mid(from, to - from);
            // Blanks at a line's end need no room.
            if (!line.isEmpty() && font.width((line + piece).trimmed()) > width) {
                lines += line;
                line.clear();
            }
            while (font.width(piece.trimmed()) > width && piece.size() > 1) {
                const qsizetype length = FittingLength(font, piece, width);
                lines += piece.left(length);
                piece.remove(0, length);
            }
            line += piece;
        }
        lines += line;
    }
    return lines;
}

}  // namespace akarix
