#include "platform/sheet/BorderPainter.h"

#include <QLineF>
#include <map>

namespace akarix {
namespace {

struct Line {
    Line() = default;
    explicit Line(const Border& border) : style(border.style), color(border.color.rgb()) {}
    BorderStyle style = BorderStyle::None;
    QRgb color = 0;
    friend auto operator<=>(const Line&, const Line&) = default;
};

Line Stronger(const Border& a, const Border& b) {
    return Line(b.style > a.style ? b : a);
}

QPen PenOf(const Line& line) {
    constexpr double thin = 0.65, medium = 1.4;
    struct Look {
        double points;
        QList<qreal> dashes;  ///< in widths of the line
    };
    static const std::map<BorderStyle, Look> looks{
        {BorderStyle::Hair, {0.4, {1, 2}}},
        {BorderStyle::Dotted, {thin, {1.5, 1.5}}},
        {BorderStyle::DashDotDot, {thin, {9, 2.5, 2, 2.5, 2, 2.5}}},
        {BorderStyle::DashDot, {thin, {9, 2.5, 2, 2.5}}},
        {BorderStyle::Dashed, {thin, {5, 2.5}}},
        {BorderStyle::Thin, {thin, {}}},
        {BorderStyle::MediumDashDotDot, {medium, {7, 2, 2, 2, 2, 2}}},
        {BorderStyle::MediumDashDot, {medium, {7, 2, 2, 2}}},
        {BorderStyle::MediumDashed, {medium, {6, 2}}},
        {BorderStyle::Medium, {medium, {}}},
        {BorderStyle::Double, {0.6, {}}},
        {BorderStyle::Thick, {2.2, {}}},
    };
    const auto& [points, dashes] = looks.at(line.style);
    QPen pen(QColor(line.color), points * TwipsPerPoint);
    // Square ends close the corners where lines meet.
    pen.setCapStyle(dashes.isEmpty() ? Qt::SquareCap : Qt::FlatCap);
    if (!dashes.isEmpty()) pen.setDashPattern(dashes);
    return pen;
}

/// Collects lines by pen, neighbouring pieces joined into one.
class Lines {
 public:
    void add(const Line& line, QPointF from, QPointF to) {
        if (line.style == BorderStyle::None) return;
        QList<QLineF>& own = byPen_[line];
        if (!own.isEmpty() && own.last().p2() == from &&
            ((own.last().dx() == 0 && to.x() == from.x()) || (own.last().dy() == 0 && to.y() == from.y())))
            own.last().setP2(to);
        else
            own.append(QLineF(from, to));
    }

    void paint(QPainter& painter) const {
        for (const auto& [line, pieces] : byPen_) {
            painter.setPen(PenOf(line));
            if (line.style != BorderStyle::Double) {
                painter.drawLines(pieces);
                continue;
            }
            for (const QLineF& piece : pieces) {
                QLineF aside = piece.normalVector();
                aside.setLength(0.75 * TwipsPerPoint);
                const QPointF apart(aside.dx(), aside.dy());
                painter.drawLine(piece.translated(apart));
                painter.drawLine(piece.translated(-apart));
            }
        }
    }

 private:
    std::map<Line, QList<QLineF>> byPen_;
};

}  // namespace

void PaintBorders(QPainter& painter, const PageGrid& grid, const PageCells& cells) {
    static const Border none;
    const int rows = grid.rowCount();
    const int columns = grid.columnCount();
    const auto joined = [&](int r1, int c1, int r2, int c2) {
        return cells.merge(r1, c1) != PageCells::NoMerge && cells.merge(r1, c1) == cells.merge(r2, c2);
    };
    Lines lines;
    for (int r = 0; r <= rows; ++r) {
        const double y = grid.y[static_cast<size_t>(r)];
        for (int c = 0; c < columns; ++c) {
            if (r > 0 && r < rows && joined(r - 1, c, r, c)) continue;
            const Border& above = r > 0 ? cells.style(r - 1, c).bottom : none;
            const Border& below = r < rows ? cells.style(r, c).top : none;
            lines.add(Stronger(above, below), {grid.x[static_cast<size_t>(c)], y},
                      {grid.x[static_cast<size_t>(c) + 1], y});
        }
    }
    for (int c = 0; c <= columns; ++c) {
        const double x = grid.x[static_cast<size_t>(c)];
        for (int r = 0; r < rows; ++r) {
            if (c > 0 && c < columns && joined(r, c - 1, r, c)) continue;
            const Border& left = c > 0 ? cells.style(r, c - 1).right : none;
            const Border& right = c < columns ? cells.style(r, c).left : none;
            lines.add(Stronger(left, right), {x, grid.y[static_cast<size_t>(r)]},
                      {x, grid.y[static_cast<size_t>(r) + 1]});
        }
    }
    for (int r = 0; r < rows; ++r) {
        for (int c = 0; c < columns; ++c) {
            const bool merged = cells.merge(r, c) != PageCells::NoMerge;
            if (merged && !cells.showsMerge(r, c)) continue;
            const QRectF box = merged ? cells.mergeBox(r, c) : grid.cell(r, c);
            const CellStyle& style = cells.style(r, c);
            lines.add(Line(style.falling), box.topLeft(), box.bottomRight());
            lines.add(Line(style.rising), box.bottomLeft(), box.topRight());
        }
    }
    lines.paint(painter);
}

}  // namespace akarix
