#include "TemplateBook.h"
#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

constexpr int kHeadRow = 4, kFirstDetail = 5, kLastDetail = 61, kTotalLabels = 62, kTotals = 63;
constexpr uint32_t kShade = 0xE4EAF0;
constexpr const char* kQuantity = "#,##0.0";
constexpr const char* kAmount = "#,##0";

struct Column {
    const char16_t* head;
    const char16_t* totalLabel;
    int pixels;
    lxw_format_alignments align;
    const char* numberFormat;
};

constexpr Column kColumns[] = {{u"ｺｰﾄﾞ", u"", 48, LXW_ALIGN_RIGHT, "0"},
                               {u"得意先", u"", 152, LXW_ALIGN_LEFT, "@"},
                               {u"前回検針値", u"", 62, LXW_ALIGN_RIGHT, kQuantity},
                               {u"今回検針値", u"", 62, LXW_ALIGN_RIGHT, kQuantity},
                               {u"使用量", u"使用量計", 58, LXW_ALIGN_RIGHT, kQuantity},
                               {u"使用料", u"使用料計", 66, LXW_ALIGN_RIGHT, kAmount},
                               {u"物販", u"物販計", 66, LXW_ALIGN_RIGHT, kAmount},
                               {u"当月売上", u"当月売上計", 68, LXW_ALIGN_RIGHT, kAmount},
                               {u"前月残", u"前月残計", 68, LXW_ALIGN_RIGHT, kAmount},
                               {u"請求額", u"請求額計", 72, LXW_ALIGN_RIGHT, kAmount}};

}  // namespace

bool WriteBillingListTemplate(const QString& path) {
    TemplateBook book(path);
    constexpr int unused = 0;
    std::vector<int> widths{unused};
    for (const Column& column : kColumns)
        widths.push_back(column.pixels);
    book.columns(widths);
    book.rows(1, 1, 18);
    book.rows(2, 2, 18);
    book.rows(3, 3, 6);
    book.rows(kHeadRow, kHeadRow, 17.25);
    book.rows(kFirstDetail, kLastDetail, 11.75);
    book.rows(kTotalLabels, kTotalLabels, 12.75);
    book.rows(kTotals, kTotals, 16.5);

    book.merged("B1:E2", u"請 求 一 覧 表"_s, book.look({.size = 18, .bold = true}));
    // The month is written into F2 alone; the cells beside it stay free for it to spread.
    book.text("F2", QString(), book.look({.size = 12, .bold = true, .numberFormat = "@"}));
    book.merged("I1:K1", DealerBlock::name(),
                book.look({.size = 10, .align = LXW_ALIGN_RIGHT, .shrink = true}));
    book.merged("I2:K2", DealerBlock::contact(),
                book.look({.size = 8, .align = LXW_ALIGN_RIGHT, .shrink = true}));

    lxw_format* head = book.look({.align = LXW_ALIGN_CENTER, .shrink = true, .framed = true, .fill = kShade});
    lxw_format* label =
        book.look({.size = 8, .align = LXW_ALIGN_CENTER, .shrink = true, .framed = true, .fill = kShade});
    int at = 2;
    for (const Column& column : kColumns) {
        const Column& c = column;
        const auto look = [&](bool bold, bool lastLine) {
            return book.look({.bold = bold,
                              .align = c.align,
                              .numberFormat = c.numberFormat,
                              .shrink = true,
                              .framed = true,
                              .lastLine = lastLine});
        };
        const QByteArray letter(1, static_cast<char>('A' + at - 1));
        book.text((letter + QByteArray::number(kHeadRow)).constData(), QString::fromUtf16(c.head), head);
        lxw_format* detail = look(false, false);
        for (int row = kFirstDetail; row < kLastDetail; ++row)
            book.blank(row, at, detail);
        book.blank(kLastDetail, at, look(false, true));
        book.text((letter + QByteArray::number(kTotalLabels)).constData(), QString::fromUtf16(c.totalLabel),
                  label);
        book.blank(kTotals, at, look(true, true));
        ++at;
    }
    book.text("C63", u"合　計"_s,
              book.look({.bold = true, .align = LXW_ALIGN_CENTER, .framed = true, .lastLine = true}));
    book.page("A1:K63", 0.45, 0.4);
    return book.save();
}

}  // namespace akarix
