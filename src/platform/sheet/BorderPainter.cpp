#include "platform/sheet/BorderPainter.h"

#include <QLineF>
#include <map>

namespace akarix {
namespace {

int Strength(BorderStyle style) {
    switch (style) {
        case BorderStyle::None:
            return 0;
        case BorderStyle::Hair:
            return 1;
        case BorderStyle::Dotted:
            return 2;
        case BorderStyle::Dashed:
            return 3;
        case BorderStyle::Thin:
            return 4;
        case BorderStyle::Medium:
            return 5;
        case BorderStyle::Double:
            return 6;
        case BorderStyle::Thick:
            return 7;
    }
    return 0;
}

struct Line {
    BorderStyle style = BorderStyle::None;
    QRgb color = 0;
    friend auto operator<=>(const Line&, const Line&) = default;
};

Line Stronger(const Border& a, const Border& b) {
    const Border& winner = Strength(b.style) > Strength(a.style) ? b : a;
    return {winner.style, winner.color.rgb()};
}

QPen PenOf(const Line& line) {
    double points = 0.65;
    QList<qreal> dashes;
    switch (line.style) {
        case BorderStyle::Hair:
            points = 0.4;
            dashes = {1, 2};
            break;
        case BorderStyle::Dotted:
            dashes = {1.5, 1.5};
            break;
        case BorderStyle::Dashed:
            dashes = {5, 2.5};
            break;
        case BorderStyle::Medium:
            points = 1.4;
            break;
        case BorderStyle::Thick:
            points = 2.2;
            break;
        case BorderStyle::Double:
            points = 0.6;
            break;
        default:
            break;
    }
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
        if (!own.isEmpty() && own.last().p2() == from && ((own.last().dx() == 0) == (to.x() == from.x()))) {
            own.last().setP2(to);
        } else {
            own.append(QLineF(from, to));
        }
    }

    void paint(QPainter& painter) const {
        for (const auto& [line, pieces] : byPen_) {
            painter.setPen(PenOf(line));
            if (line.style != BorderStyle::Double) {
                painter.drawLines(pieces);
                continue;
            }
            const double apart = 0.75 * TwipsPerPoint;
            for (const QLineF& piece : pieces) {
                const QPointF aside = piece.dx() == 0 ? QPointF(apart, 0) : QPointF(0, apart);
                painter.drawLine(piece.translated(aside));
                painter.drawLine(piece.translated(-aside));
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
    lines.paint(painter);
}

}  // namespace akarix
