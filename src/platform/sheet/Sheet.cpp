#include "platform/sheet/Sheet.h"

#include <algorithm>

#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"
#include "platform/sheet/NumberFormat.h"
#include "platform/sheet/TypedValue.h"

namespace akarix {

namespace {

// A written block larger than this is a mistake, not a report.
constexpr long long kLargestWrittenBlock = 1'000'000;

std::optional<CellAddress> ParseAddress(QStringView text) {
    CellAddress address;
    qsizetype at = 0;
    if (at < text.size() && text[at] == u'$') ++at;
    for (; at < text.size(); ++at) {
        const char16_t letter = text[at].toUpper().unicode();
        if (letter < u'A' || letter > u'Z') break;
        address.column = address.column * 26 + (letter - u'A' + 1);
        if (address.column > kLastSheetColumn) return std::nullopt;
    }
    if (at < text.size() && text[at] == u'$') ++at;
    for (; at < text.size(); ++at) {
        const char16_t digit = text[at].unicode();
        if (digit < u'0' || digit > u'9') return std::nullopt;
        address.row = address.row * 10 + (digit - u'0');
        if (address.row > kLastSheetRow) return std::nullopt;
    }
    if (address.row < 1 || address.column < 1) return std::nullopt;
    return address;
}

bool Intersects(const CellRange& a, const CellRange& b) {
    return a.first.row <= b.last.row && b.first.row <= a.last.row && a.first.column <= b.last.column &&
           b.first.column <= a.last.column;
}

bool IsBlank(const Cell& cell) {
    return cell.text.isEmpty() && !cell.number;
}

bool IsPainted(const CellStyle& style) {
    return style.fill.isValid() || style.left.style != BorderStyle::None ||
           style.right.style != BorderStyle::None || style.top.style != BorderStyle::None ||
           style.bottom.style != BorderStyle::None || style.falling.style != BorderStyle::None ||
           style.rising.style != BorderStyle::None;
}

}  // namespace

CellRange ParseRange(const QString& address) {
    const QStringView text(address);
    const qsizetype colon = text.indexOf(u':');
    const auto first = ParseAddress(colon < 0 ? text : text.left(colon));
    const auto last = colon < 0 ? first : ParseAddress(text.mid(colon + 1));
    if (!first || !last) throw RuntimeError(1004, u"セルの番地が正しくありません: %1"_s.arg(address));
    return {{std::min(first->row, last->row), std::min(first->column, last->column)},
            {std::max(first->row, last->row), std::max(first->column, last->column)}};
}

void Sheet::setValue(const QString& address, const QString& text) {
    const CellRange block = ParseRange(address);
    if (text.isEmpty()) {
        for (auto it = cells.lower_bound(block.first); it != cells.end() && it->first.row <= block.last.row;
             ++it) {
            if (!block.contains(it->first)) continue;
            it->second.blank();
        }
        return;
    }
    if ((block.last.row - block.first.row + 1LL) * (block.last.column - block.first.column + 1LL) >
        kLargestWrittenBlock)
        throw RuntimeError(1004, u"書き込む範囲が大きすぎます: %1"_s.arg(address));
    const auto number = ParseTypedNumber(text);
    const auto date = number ? std::nullopt : ParseTypedDate(text);
    for (int row = block.first.row; row <= block.last.row; ++row) {
        for (int column = block.first.column; column <= block.last.column; ++column) {
            const CellAddress at{row, column};
            if (hiddenByMerge(at)) continue;
            const int style = styleIndexAt(at);
            const QString& format = styles[static_cast<size_t>(style)].numberFormat;
            Cell& cell = cells[at];
            cell = {{}, {}, style};
            if (number && format != QLatin1String("@"))
                cell.number = number->value;
            else if (date && IsDateFormat(format))
                cell.number = date;
            else
                cell.text = text;
        }
    }
}

void Sheet::setMerged(const QString& address, bool merged) {
    CellRange block = ParseRange(address);
    const auto touching = [&block](const CellRange& merge) { return Intersects(merge, block); };
    if (!merged) {
        std::erase_if(merges, touching);
        return;
    }
    // A merge that is only touched becomes part of the new one.
    for (auto it = merges.begin();
         (it = std::find_if(merges.begin(), merges.end(), touching)) != merges.end();) {
        block = {{std::min(block.first.row, it->first.row), std::min(block.first.column, it->first.column)},
                 {std::max(block.last.row, it->last.row), std::max(block.last.column, it->last.column)}};
        merges.erase(it);
    }
    if (block.first == block.last) return;
    merges.push_back(block);

    std::optional<Cell> kept;
    for (auto it = cells.lower_bound(block.first); it != cells.end() && it->first.row <= block.last.row;
         ++it) {
        if (!block.contains(it->first) || IsBlank(it->second)) continue;
        if (!kept) kept = it->second;
        it->second.blank();
    }
    if (!kept) return;
    const int style = styleIndexAt(block.first);
    Cell& corner = cells[block.first];
    corner = *kept;
    corner.style = style;
}

double Sheet::columnWidth(int column) const {
    const auto found = columnWidths.find(column);
    return found == columnWidths.end() ? defaultColumnWidth : found->second;
}

double Sheet::rowHeight(int row) const {
    const auto found = rowHeights.find(row);
    return found == rowHeights.end() ? defaultRowHeight : found->second;
}

QString Sheet::shownText(CellAddress address) const {
    const auto found = cells.find(address);
    if (found == cells.end()) return {};
    const QString& format = styleAt(address).numberFormat;
    return found->second.number ? FormatNumber(*found->second.number, format).text
                                : FormatText(found->second.text, format);
}

const CellStyle& Sheet::styleAt(CellAddress address) const {
    return styles[static_cast<size_t>(styleIndexAt(address))];
}

int Sheet::styleIndexAt(CellAddress address) const {
    int style = 0;
    if (const auto cell = cells.find(address); cell != cells.end())
        style = cell->second.style;
    else if (const auto row = rowStyles.find(address.row); row != rowStyles.end())
        style = row->second;
    else if (const auto column = columnStyles.find(address.column); column != columnStyles.end())
        style = column->second;
    return style >= 0 && style < static_cast<int>(styles.size()) ? style : 0;
}

bool Sheet::hiddenByMerge(CellAddress address) const {
    return std::any_of(merges.begin(), merges.end(), [address](const CellRange& merge) {
        return merge.contains(address) && merge.first != address;
    });
}

bool Sheet::prints(const QString& address) const {
    const CellAddress at = ParseRange(address).first;
    return (!page.printArea || page.printArea->contains(at)) && rowHeight(at.row) > 0 &&
           columnWidth(at.column) > 0 && !hiddenByMerge(at);
}

CellAddress Sheet::extent() const {
    std::vector<bool> painted;
    painted.reserve(styles.size());
    for (const CellStyle& style : styles)
        painted.push_back(IsPainted(style));
    CellAddress last;
    for (const auto& [address, cell] : cells) {
        const auto style = static_cast<size_t>(cell.style);
        if (IsBlank(cell) && !(style < painted.size() && painted[style])) continue;
        last.row = std::max(last.row, address.row);
        last.column = std::max(last.column, address.column);
    }
    return last;
}

}  // namespace akarix
