#include "platform/sheet/SheetLayout.h"

#include <algorithm>
#include <cmath>

namespace akarix {
namespace {

constexpr double Tolerance = 0.01;  // points; sums of widths carry rounding
constexpr int SmallestPercent = 10;
constexpr int MaxRow = 1048576;
constexpr int MaxColumn = 16384;

struct Span {
    int first, last;
};

CellRange PrintedArea(const Sheet& sheet) {
    CellAddress end = sheet.extent();
    for (const CellRange& merge : sheet.merges) {
        end.row = std::max(end.row, merge.last.row);
        end.column = std::max(end.column, merge.last.column);
    }
    end = {std::max(end.row, 1), std::max(end.column, 1)};
    if (!sheet.page.printArea) return {{1, 1}, end};
    CellRange area = *sheet.page.printArea;
    // An area of whole columns or rows ends where the sheet does.
    if (area.last.row >= MaxRow) area.last.row = std::max(end.row, area.first.row);
    if (area.last.column >= MaxColumn) area.last.column = std::max(end.column, area.first.column);
    return area;
}

/// Lengths of the rows or columns of the area, so that trying out scales need not ask the sheet again.
struct Lengths {
    int first;
    std::vector<double> of;
    double between(const Span& span) const {
        double sum = 0;
        for (int i = span.first; i <= span.last; ++i)
            sum += of[static_cast<size_t>(i - first)];
        return sum;
    }
};

class Breaker {
 public:
    explicit Breaker(const Sheet& sheet) : setup_(sheet.page), area_(PrintedArea(sheet)) {
        rows_.first = area_.first.row;
        for (int row = area_.first.row; row <= area_.last.row; ++row)
            rows_.of.push_back(sheet.rowHeight(row));
        columns_.first = area_.first.column;
        for (int column = area_.first.column; column <= area_.last.column; ++column)
            columns_.of.push_back(sheet.columnWidth(column));
        for (const int row : RepeatedRows(sheet, setup_.titleLastRow + 1))
            titleHeight_ += sheet.rowHeight(row);
    }

    double roomWidth() const { return std::max(1.0, setup_.paperWidth - setup_.left - setup_.right); }
    double roomHeight() const { return std::max(1.0, setup_.paperHeight - setup_.top - setup_.bottom); }

    std::vector<Span> columnSpans(double scale) const {
        return spans(columns_, area_.last.column, [&](int) { return roomWidth() / scale; }, {});
    }
    std::vector<Span> rowSpans(double scale) const {
        // Manual breaks and a wanted number of pages contradict each other; the wanted number wins.
        const std::vector<int> breaks = setup_.fitToPage ? std::vector<int>() : setup_.rowBreaks;
        const auto room = [&](int first) { return roomHeight() / scale - titleHeight(first); };
        return spans(rows_, area_.last.row, room, breaks);
    }

    /// In whole percent, as the templates' makers see it on their screen.
    double scale() const {
        if (!setup_.fitToPage) return std::clamp(setup_.scalePercent, SmallestPercent, 400) / 100.0;
        int percent = 100;
        while (percent > SmallestPercent && !fits(percent / 100.0))
            --percent;
        return percent / 100.0;
    }

    double width(const Span& columns) const { return columns_.between(columns); }
    double height(const Span& rows) const { return titleHeight(rows.first) + rows_.between(rows); }

 private:
    template <class Room>
    static std::vector<Span> spans(const Lengths& lengths, int last, Room room,
                                   const std::vector<int>& breaks) {
        std::vector<Span> result;
        int first = lengths.first;
        double used = 0;
        for (int i = first; i <= last; ++i) {
            const double length = lengths.of[static_cast<size_t>(i - lengths.first)];
            const bool forced = std::find(breaks.begin(), breaks.end(), i - 1) != breaks.end();
            if (i > first && (forced || used + length > room(first) + Tolerance)) {
                result.push_back({first, i - 1});
                first = i;
                used = 0;
            }
            used += length;
        }
        result.push_back({first, last});
        return result;
    }

    double titleHeight(int firstRow) const { return firstRow > setup_.titleLastRow ? titleHeight_ : 0; }

    bool fits(double scale) const {
        const auto within = [](size_t pages, int wanted) {
            return wanted <= 0 || pages <= static_cast<size_t>(wanted);
        };
        // One page across must hold the width itself: a single column wider than the paper is no break.
        if (setup_.fitWidth == 1 &&
            width({area_.first.column, area_.last.column}) * scale > roomWidth() + Tolerance)
            return false;
        return within(columnSpans(scale).size(), setup_.fitWidth) &&
               within(rowSpans(scale).size(), setup_.fitHeight);
    }

    const PageSetup& setup_;
    CellRange area_;
    Lengths rows_{1, {}}, columns_{1, {}};
    double titleHeight_ = 0;
};

std::pair<int, int> Between(const std::vector<int>& numbers, int first, int last) {
    const auto begin = std::lower_bound(numbers.begin(), numbers.end(), first);
    const auto end = std::upper_bound(numbers.begin(), numbers.end(), last);
    return {static_cast<int>(begin - numbers.begin()), static_cast<int>(end - numbers.begin())};
}

}  // namespace

std::vector<int> RepeatedRows(const Sheet& sheet, int firstRow) {
    std::vector<int> rows;
    if (sheet.page.titleFirstRow <= 0 || firstRow <= sheet.page.titleLastRow) return rows;
    for (int row = sheet.page.titleFirstRow; row <= sheet.page.titleLastRow; ++row)
        rows.push_back(row);
    return rows;
}

std::vector<SheetPage> LayOutSheet(const Sheet& sheet) {
    const Breaker breaker(sheet);
    const double scale = breaker.scale();
    std::vector<SheetPage> pages;
    const std::vector<Span> rowSpans = breaker.rowSpans(scale);
    for (const Span& columns : breaker.columnSpans(scale)) {
        for (const Span& rows : rowSpans) {
            SheetPage page{rows.first, rows.last,       columns.first, columns.last,
                           scale,      sheet.page.left, sheet.page.top};
            if (sheet.page.centerHorizontally)
                page.originX += std::max(0.0, breaker.roomWidth() - breaker.width(columns) * scale) / 2;
            if (sheet.page.centerVertically)
                page.originY += std::max(0.0, breaker.roomHeight() - breaker.height(rows) * scale) / 2;
            pages.push_back(page);
        }
    }
    return pages;
}

PageGrid::PageGrid(const Sheet& sheet, const SheetPage& page) {
    const auto add = [](std::vector<int>& numbers, std::vector<double>& edges, int number, double points) {
        if (points <= 0) return;
        numbers.push_back(number);
        edges.push_back(edges.back() + points * TwipsPerPoint);
    };
    x.push_back(0);
    y.push_back(0);
    for (const int row : RepeatedRows(sheet, page.firstRow))
        add(rows, y, row, sheet.rowHeight(row));
    for (int row = page.firstRow; row <= page.lastRow; ++row)
        add(rows, y, row, sheet.rowHeight(row));
    for (int column = page.firstColumn; column <= page.lastColumn; ++column)
        add(columns, x, column, sheet.columnWidth(column));
}

QRectF PageGrid::cell(int r, int c) const {
    const auto row = static_cast<size_t>(r);
    const auto column = static_cast<size_t>(c);
    return {QPointF(x[column], y[row]), QPointF(x[column + 1], y[row + 1])};
}

std::pair<int, int> PageGrid::rowsBetween(int first, int last) const {
    return Between(rows, first, last);
}

std::pair<int, int> PageGrid::columnsBetween(int first, int last) const {
    return Between(columns, first, last);
}

}  // namespace akarix
