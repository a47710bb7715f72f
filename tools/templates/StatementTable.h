#pragma once

#include <vector>

#include "TemplateBook.h"
#include "platform/runtime/Literals.h"

namespace akarix {

/// A block of columns that the lines of a debit statement's table share.
struct StatementBlock {
    const char16_t* first;
    const char16_t* last;
    int columns;
    int pixels;  ///< of one column
    const char16_t* head;
    lxw_format_alignments align;
    const char* numberFormat;
};

inline QString RangeOf(const StatementBlock& block, int row) {
    return u"%1%3:%2%3"_s.arg(QString::fromUtf16(block.first), QString::fromUtf16(block.last)).arg(row);
}

/// Gives the sheet the columns of its blocks and the table its head.
template <std::size_t Count>
void AddStatementHead(TemplateBook& book, const StatementBlock (&blocks)[Count], int row,
                      std::uint32_t shade) {
    std::vector<int> widths;
    for (const StatementBlock& block : blocks) {
        widths.insert(widths.end(), static_cast<std::size_t>(block.columns), block.pixels);
        book.framed(RangeOf(block, row), QString::fromUtf16(block.head),
                    {.align = LXW_ALIGN_CENTER, .shrink = true, .framed = true, .fill = shade});
    }
    book.columns(widths);
}

}  // namespace akarix
