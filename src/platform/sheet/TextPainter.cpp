#include "platform/sheet/TextPainter.h"

#include <algorithm>
#include <cmath>

#include "platform/print/PaperFont.h"
#include "platform/runtime/Literals.h"
#include "platform/sheet/SheetLayout.h"
#include "platform/sheet/TextLines.h"

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

/// Of letters above or below the line.
constexpr double SmallLetters = 0.65;

PaperFont& FontOf(const SheetFont& font, double size) {
    if (font.raised != 0) size *= SmallLetters;
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

class TextSetter {
 public:
    TextSetter(QPainter& painter, const CellStyle& style, const ShownText& shown)
        : painter_(painter),
          style_(style),
          shown_(shown),
          box_(shown.box),
          font_(&FontOf(style.font, style.font.size)),
          align_(Resolved(style.horizontal, shown.number)) {
        const bool inPlace = Wraps(style) || !shown.text.contains(QLatin1Char('\n'));
        rich_ = inPlace && style.horizontal != HorizontalAlign::Fill &&
                style.horizontal != HorizontalAlign::Distributed;
        chooseFonts(1);
    }

    void paint() {
        painter_.setPen(shown_.color.isValid() ? shown_.color : style_.font.color);
        if (style_.rotation == Upright)
            paintUpright();
        else if (style_.rotation != 0)
            paintRotated();
        else
            paintLines();
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
            lines = TextLines(shown_.text, room(),
                              [this](qsizetype from, const QString& part) { return width(from, part); });
        } else {
            QString line = shown_.text;
            lines += line.remove(QLatin1Char('\n'));
        }
        if (style_.horizontal == HorizontalAlign::Fill) repeatToFill(lines.first());
        double squeeze = 1;
        if (lines.size() == 1) squeeze = fitLine(lines.first());

        const double height = font_->em() * static_cast<double>(lines.size());
        double widest = 0;
        std::vector<qsizetype> starts;
        qsizetype from = 0;
        for (const QString& line : lines) {
            starts.push_back(from);
            widest = std::max(widest, width(from, line) * squeeze);
            from += line.size();
            if (from < shown_.text.size() && shown_.text.at(from) == QLatin1Char('\n')) ++from;
        }
        const QRectF spill(QPointF(std::min(box_.left(), shown_.spillLeft), box_.top()),
                           QPointF(std::max(box_.right(), shown_.spillRight), box_.bottom()));
        const bool clipped = height > box_.height() || widest > box_.width() - NumberPadding;
        if (clipped) {
            painter_.save();
            painter_.setClipRect(spill, Qt::IntersectClip);
        }
        double top = BlockTop(box_, style_.vertical, height);
        double pitch = font_->em();
        if (style_.vertical == VerticalAlign::Distributed && lines.size() > 1 && height < box_.height()) {
            pitch += (box_.height() - height - 2 * EdgePadding) / static_cast<double>(lines.size() - 1);
            top = box_.top() + EdgePadding;
        }
        for (qsizetype i = 0; i < lines.size(); ++i) {
            paintLine(starts[static_cast<size_t>(i)], lines.at(i), top + font_->ascent(), squeeze);
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
        const double width = this->width(0, line);
        if (style_.shrink && width > room()) {
            chooseFonts(std::max(0.05, room() / width));
            return 1;
        }
        const double edges = shown_.number ? box_.width() : shown_.spillRight - shown_.spillLeft;
        const double most = edges - 2 * NumberPadding - indent();
        if (width <= most) return 1;
        if (font_->substituted() && width * NarrowestLetters <= most) return most / width;
        if (!shown_.number) return 1;
        const double mark = font_->width(u"#"_s);
        line = QString(std::max(1, static_cast<int>(most / mark)), QLatin1Char('#'));
        return 1;
    }

    void paintLine(qsizetype from, const QString& line, double baseline, double squeeze) {
        const double width = this->width(from, line) * squeeze;
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
        if (squeeze == 1) {
            draw({x, baseline}, from, line);
            return;
        }
        painter_.save();
        painter_.translate(x, baseline);
        painter_.scale(squeeze, 1);
        draw({}, from, line);
        painter_.restore();
    }

    void paintSpread(const QString& line, double baseline) {
        const QStringList pieces = TextPieces(line);
        double total = 0;
        for (const QString& piece : pieces)
            total += font_->width(piece);
        if (pieces.size() < 2 || total > room()) {
            font_->draw(painter_, {box_.center().x() - font_->width(line) / 2, baseline}, line);
            return;
        }
        const double gap = (room() - total) / static_cast<double>(pieces.size() - 1);
        double x = box_.left() + SidePadding + indent();
        for (const QString& piece : pieces) {
            font_->draw(painter_, {x, baseline}, piece);
            x += font_->width(piece) + gap;
        }
    }

    /// A stretch of the text in one font.
    struct Stretch {
        qsizetype from, to;
        PaperFont* font;
        double rise;  ///< of its base line above the line's
        QColor color;
    };

    /// The fonts of the text's stretches, made smaller by a factor; the tallest one gives the line its
    /// height.
    void chooseFonts(double factor) {
        const auto fontOf = [factor](const SheetFont& font) {
            const double size = font.size * factor;
            return &FontOf(font, factor == 1 ? size : std::floor(size * TwipsPerPoint) / TwipsPerPoint);
        };
        font_ = fontOf(style_.font);
        stretches_.clear();
        qsizetype from = 0;
        for (const TextRun& run : rich_ ? shown_.runs : std::vector<TextRun>()) {
            const SheetFont& font = run.font ? *run.font : style_.font;
            PaperFont* own = fontOf(font);
            const double rise = font.raised > 0 ? 0.5 : font.raised < 0 ? -0.2 : 0;
            stretches_.push_back({from, from + run.length, own, own->em() * rise, font.color});
            if (own->em() > font_->em()) font_ = own;
            from += run.length;
        }
    }

    /// Gives each stretch of a part of the text with its own letters.
    template <class Use>
    void forStretches(qsizetype from, const QString& part, Use use) const {
        for (const Stretch& stretch : stretches_) {
            const qsizetype begin = std::max<qsizetype>(stretch.from - from, 0);
            const qsizetype end = std::min(stretch.to - from, part.size());
            if (begin < end) use(stretch, part.mid(begin, end - begin));
        }
    }

    /// \param from where the part begins in the text
    double width(qsizetype from, const QString& part) const {
        if (stretches_.empty()) return font_->width(part);
        double sum = 0;
        forStretches(from, part,
                     [&](const Stretch& stretch, const QString& own) { sum += stretch.font->width(own); });
        return sum;
    }

    void draw(QPointF base, qsizetype from, const QString& line) {
        if (stretches_.empty()) font_->draw(painter_, base, line);
        forStretches(from, line, [&](const Stretch& stretch, const QString& own) {
            painter_.setPen(stretch.color);
            stretch.font->draw(painter_, base - QPointF(0, stretch.rise), own);
            base.rx() += stretch.font->width(own);
        });
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
        static const QString turned = u"（）「」『』［］｛｝〈〉《》【】〔〕()[]{}<>ー～－―…‥-~=＝：；｜"_s;
        static const QString cornered = u"、。，．"_s;
        const QString text(letter);
        const double width = font_->width(text);
        if (turned.contains(letter)) {
            painter_.save();
            painter_.translate(square.center());
            painter_.rotate(90);
            font_->draw(painter_, QPointF(-width / 2, font_->ascent() - square.height() / 2), text);
            painter_.restore();
            return;
        }
        QPointF at(square.center().x() - width / 2, square.top() + font_->ascent());
        if (cornered.contains(letter)) at += QPointF(square.width() * 0.6, -square.height() * 0.6);
        font_->draw(painter_, at, text);
    }

    QPainter& painter_;
    const CellStyle& style_;
    const ShownText& shown_;
    QRectF box_;
    PaperFont* font_;
    HorizontalAlign align_;
    bool rich_ = false;
    std::vector<Stretch> stretches_;
};

}  // namespace

bool MaySpill(const CellStyle& style, bool number) {
    return !number && !style.shrink && style.rotation == 0 && !Wraps(style) &&
           style.horizontal != HorizontalAlign::Fill && style.horizontal != HorizontalAlign::Distributed;
}

void PaintText(QPainter& painter, const CellStyle& style, const ShownText& shown) {
    if (!shown.text.isEmpty()) TextSetter(painter, style, shown).paint();
}

}  // namespace akarix
