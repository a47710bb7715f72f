#include "platform/sheet/SheetPainter.h"

#include "platform/print/PaperFont.h"
#include "platform/sheet/BorderPainter.h"
#include "platform/sheet/HeaderFooter.h"
#include "platform/sheet/NumberFormat.h"
#include "platform/sheet/PageCells.h"
#include "platform/sheet/TextPainter.h"

namespace akarix {
namespace {

class PagePainter {
 public:
    PagePainter(QPainter& painter, const Sheet& sheet, const SheetPage& page)
        : painter_(painter), sheet_(sheet), grid_(sheet, page), cells_(sheet, grid_) {}

    void paint() {
        forEachShown(&PagePainter::paintFill);
        if (sheet_.page.gridLines) paintGridLines();
        PaintBorders(painter_, grid_, cells_);
        forEachShown(&PagePainter::paintText);
    }

 private:
    /// One visible place: a cell, or the first place of a merge with the merge's whole block.
    struct Place {
        int r, c;
        CellAddress address;  ///< of the cell that holds what is shown
        QRectF box;
        const CellStyle& style;
        const Cell* cell;
    };

    void forEachShown(void (PagePainter::*paintPlace)(const Place&)) {
        for (int r = 0; r < grid_.rowCount(); ++r) {
            for (int c = 0; c < grid_.columnCount(); ++c) {
                const int merge = cells_.merge(r, c);
                if (merge == PageCells::NoMerge) {
                    const CellAddress here{grid_.rows[static_cast<size_t>(r)],
                                           grid_.columns[static_cast<size_t>(c)]};
                    (this->*paintPlace)(
                        {r, c, here, grid_.cell(r, c), cells_.style(r, c), cells_.cell(r, c)});
                } else if (cells_.showsMerge(r, c)) {
                    const CellAddress anchor = sheet_.merges[static_cast<size_t>(merge)].first;
                    const auto held = sheet_.cells.find(anchor);
                    (this->*paintPlace)({r, c, anchor, cells_.mergeBox(r, c), sheet_.styleAt(anchor),
                                         held == sheet_.cells.end() ? nullptr : &held->second});
                }
            }
        }
    }

    QRectF pageBox() const { return {QPointF(), QPointF(grid_.x.back(), grid_.y.back())}; }

    void paintFill(const Place& place) {
        if (place.style.fill.isValid()) painter_.fillRect(place.box & pageBox(), place.style.fill);
    }

    void paintGridLines() {
        painter_.setPen(QPen(QColor(128, 128, 128), 0.3 * TwipsPerPoint));
        for (const double y : grid_.y)
            painter_.drawLine(QPointF(0, y), QPointF(grid_.x.back(), y));
        for (const double x : grid_.x)
            painter_.drawLine(QPointF(x, 0), QPointF(x, grid_.y.back()));
    }

    void paintText(const Place& place) {
        if (!place.cell || (place.cell->text.isEmpty() && !place.cell->number)) return;
        ShownText shown;
        shown.number = place.cell->number.has_value();
        shown.box = place.box;
        if (shown.number) {
            const FormattedNumber formatted = FormatNumber(*place.cell->number, place.style.numberFormat);
            shown.text = formatted.text;
            shown.color = formatted.color;
        } else {
            shown.text = AsShown(sheet_.shownText(place.address), place.style.font.name);
            // Marks that a format adds to the text would shift the runs.
            if (shown.text.size() == place.cell->text.size()) shown.runs = place.cell->runs;
        }
        const bool merged = cells_.merge(place.r, place.c) != PageCells::NoMerge;
        if (!merged && place.style.horizontal == HorizontalAlign::CenterAcross)
            shown.box.setRight(acrossEdge(place));
        shown.spillLeft = shown.box.left();
        shown.spillRight = shown.box.right();
        if (!merged && MaySpill(place.style, shown.number)) {
            shown.spillLeft = spillEdge(place, -1);
            shown.spillRight = spillEdge(place, +1);
        }
        const bool cut = merged && !pageBox().contains(shown.box);
        if (cut) {
            painter_.save();
            painter_.setClipRect(pageBox(), Qt::IntersectClip);
        }
        PaintText(painter_, place.style, shown);
        if (cut) painter_.restore();
    }

    double spillEdge(const Place& place, int step) const {
        int c = place.c + step;
        while (c >= 0 && c < grid_.columnCount() && cells_.blank(place.r, c))
            c += step;
        return grid_.x[static_cast<size_t>(step > 0 ? c : c + 1)];
    }

    double acrossEdge(const Place& place) const {
        int c = place.c + 1;
        while (c < grid_.columnCount() && cells_.blank(place.r, c) &&
               cells_.style(place.r, c).horizontal == HorizontalAlign::CenterAcross)
            ++c;
        return grid_.x[static_cast<size_t>(c)];
    }

    QPainter& painter_;
    const Sheet& sheet_;
    PageGrid grid_;
    PageCells cells_;
};

}  // namespace

void PaintSheet(QPainter& painter, const Sheet& sheet, const SheetPage& page, int pageNumber, int pageCount) {
    painter.save();
    PaintHeaderFooter(painter, sheet, sheet.page.headersScale ? page.scale : 1, pageNumber, pageCount);
    painter.translate(page.originX * TwipsPerPoint, page.originY * TwipsPerPoint);
    painter.scale(page.scale, page.scale);
    PagePainter(painter, sheet, page).paint();
    painter.restore();
}

}  // namespace akarix
