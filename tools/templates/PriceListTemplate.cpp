#include "TemplateBook.h"
#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

constexpr int kHeadRow = 4, kFirstDetail = 5, kLastDetail = 24, kNoteRow = 25;
constexpr int kLabelColumn = 2, kFirstPrice = 3, kPrices = 10;
constexpr int kRowsOfABand = 5;  // a rule after every five rows guides the eye to its row label
constexpr uint32_t kShade = 0xE4EAF0;

}  // namespace

bool WritePriceListTemplate(const QString& path) {
    TemplateBook book(path);
    constexpr int unused = 0;
    constexpr int labelWidth = 54;
    constexpr int priceWidth = 64;
    std::vector<int> widths{unused, labelWidth};
    widths.insert(widths.end(), kPrices, priceWidth);
    book.columns(widths);
    book.rows(1, 2, 21);
    book.rows(3, 3, 15);
    book.rows(kHeadRow, kHeadRow, 24);
    book.rows(kFirstDetail, kLastDetail, 32.5);
    book.rows(kNoteRow, kNoteRow, 20);

    book.merged("B1:E2", u"価 格 表"_s, book.look({.size = 22, .bold = true}));
    book.merged("F2:G2", u"パターン"_s, book.look({.size = 11, .align = LXW_ALIGN_RIGHT}));
    book.text("H2", {},
              book.look({.size = 14,
                         .bold = true,
                         .align = LXW_ALIGN_CENTER,
                         .numberFormat = "0",
                         .underline = LXW_BORDER_THIN}));
    book.merged("I1:L1", DealerBlock::name(),
                book.look({.size = 11, .align = LXW_ALIGN_RIGHT, .shrink = true}));
    book.merged("I2:L2", DealerBlock::contact(),
                book.look({.size = 8, .align = LXW_ALIGN_RIGHT, .shrink = true}));
    book.text("L3", u"（単位：円）"_s, book.look({.align = LXW_ALIGN_RIGHT}));

    const TemplateBook::Look head{.size = 11, .align = LXW_ALIGN_CENTER, .framed = true, .fill = kShade};
    book.block(kHeadRow, kLabelColumn, kHeadRow, kLabelColumn, u"容 量"_s, book.look(head));
    for (int i = 0; i < kPrices; ++i)
        book.block(kHeadRow, kFirstPrice + i, kHeadRow, kFirstPrice + i, QString::number(i), book.look(head));
    for (int row = kFirstDetail; row <= kLastDetail; ++row) {
        const bool bandEnds = (row - kFirstDetail + 1) % kRowsOfABand == 0;
        book.blank(row, kLabelColumn,
                   book.look({.size = 11,
                              .align = LXW_ALIGN_CENTER,
                              .numberFormat = "0",
                              .framed = true,
                              .fill = kShade}));
        for (int i = 0; i < kPrices; ++i) {
            book.blank(row, kFirstPrice + i,
                       book.look({.size = 11,
                                  .align = LXW_ALIGN_RIGHT,
                                  .numberFormat = "#,##0_ ",
                                  .shrink = true,
                                  .framed = true,
                                  .lastLine = bandEnds}));
        }
    }
    // One sheet serves both kinds of price, so its heads name the step and not the capacity.
    book.merged("B25:L25",
                u"上の見出しは容量の端数です。法人向けは左の容量に 0 ～ 9 を、"
                "個人向けは 0.0 ～ 0.9 を足して下さい。"_s,
                book.look({.size = 9}));
    book.page("A1:L25", 0.6, 0.5);
    return book.save();
}

}  // namespace akarix
