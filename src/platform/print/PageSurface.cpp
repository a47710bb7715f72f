#include "platform/print/PageSurface.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {
namespace {

constexpr double TwipsPerPoint = 20;
constexpr double RuleWidth = 0.65 * TwipsPerPoint;  // as the thin frames of the templates
constexpr int LargestFont = 2160;
constexpr int InvalidProperty = 380;
constexpr int AnsiCharset = 0;

QStringList LinesOf(const QString& text) {
    return QString(text).remove(u'\r').split(u'\n');
}

}  // namespace

void PageSurface::SetArea(int width, int height) {
    if (width <= 0 || height <= 0)
        throw RuntimeError(InvalidProperty, u"用紙の大きさが不正です (%1 x %2)。"_s.arg(width).arg(height));
    paper_ = QSizeF(width, height) / TwipsPerPoint;
}

void PageSurface::SetFontCharset(int charset) {
    charset_ = charset;
}

void PageSurface::SetFontName(const QString& name) {
    PaperFontKey wanted = fontKey_;
    wanted.name = name;
    const int charset = std::exchange(charset_, JapaneseCharset);
    // Another font would print readable letters where bars belong, and nobody would notice.
    if (charset == AnsiCharset && FontOnPaper(wanted).substituted())
        throw RuntimeError(InvalidProperty, u"フォント '%1' がありません。"_s.arg(name));
    fontKey_ = wanted;
}

void PageSurface::SetFontSize(int points) {
    if (points < 1 || points > LargestFont)
        throw RuntimeError(InvalidProperty, u"文字の大きさが不正です (%1)。"_s.arg(points));
    fontKey_.size = points;
}

double PageSurface::TextWidth(const QString& text) {
    double widest = 0;
    for (const QString& line : LinesOf(text))
        widest = std::max(widest, font().width(line));
    return widest;
}

double PageSurface::TextHeight(const QString& text) {
    return font().em() * static_cast<double>(LinesOf(text).size());
}

void PageSurface::Print(int x, int y, const QString& text) {
    marks_.emplace_back(Text{QPointF(x, y), LinesOf(text), &font()});
}

void PageSurface::Line(int x1, int y1, int x2, int y2) {
    marks_.emplace_back(QLine(x1, y1, x2, y2));
}

void PageSurface::Cls() {
    marks_.clear();
}

PrintPage PageSurface::takePage() {
    const auto marks = std::make_shared<const std::vector<Mark>>(std::exchange(marks_, {}));
    return {paper_, [marks](QPainter& painter) {
                for (const Mark& mark : *marks)
                    draw(painter, mark);
            }};
}

void PageSurface::draw(QPainter& painter, const Mark& mark) {
    if (const QLine* line = std::get_if<QLine>(&mark)) {
        painter.setPen(QPen(Qt::black, RuleWidth, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(*line);
        return;
    }
    const Text& text = std::get<Text>(mark);
    painter.setPen(Qt::black);
    QPointF base = text.corner + QPointF(0, text.font->ascent());
    for (const QString& line : text.lines) {
        text.font->draw(painter, base, line);
        base += QPointF(0, text.font->em());
    }
}

}  // namespace akarix
