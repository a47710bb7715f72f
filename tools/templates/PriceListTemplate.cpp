#include "TemplateBook.h"

namespace akarix {

namespace {

constexpr int headRow = 4, firstDetail = 5, lastDetail = 24, noteRow = 25;
constexpr int labelColumn = 2, firstPrice = 3, prices = 10;
constexpr int rowsOfABand = 5;  // a rule after every five rows guides the eye to its row label
constexpr uint32_t shade = 0xE4EAF0;

}  // namespace

bool WritePriceListTemplate(const QString& path) {
    TemplateBook book(path);
    constexpr int unused = 0;
    constexpr int labelWidth = 54;
    constexpr int priceWidth = 64;
    std::vector<int> widths{unused, labelWidth};
    widths.insert(widths.end(), prices, priceWidth);
    book.columns(widths);
    book.rows(1, 2, 21);
    book.rows(3, 3, 15);
    book.rows(headRow, headRow, 24);
    book.rows(firstDetail, lastDetail, 32.5);
    book.rows(noteRow, noteRow, 20);

    book.merged("B1:E2", QStringLiteral("価 格 表"), book.look({.size = 22, .bold = true}));
    book.merged("F2:G2", QStringLiteral("パターン"), book.look({.size = 11, .align = LXW_ALIGN_RIGHT}));
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
    book.text("L3", QStringLiteral("（単位：円）"), book.look({.align = LXW_ALIGN_RIGHT}));

    const TemplateBook::Look head{.size = 11, .align = LXW_ALIGN_CENTER, .framed = true, .fill = shade};
    book.block(headRow, labelColumn, headRow, labelColumn, QStringLiteral("容 量"), book.look(head));
    for (int i = 0; i < prices; ++i)
        book.block(headRow, firstPrice + i, headRow, firstPrice + i, QString::number(i), book.look(head));
    for (int row = firstDetail; row <= lastDetail; ++row) {
        const bool bandEnds = (row - firstDetail + 1) % rowsOfABand == 0;
        book.blank(
            row, labelColumn,
            book.look(
                {.size = 11, .align = LXW_ALIGN_CENTER, .numberFormat = "0", .framed = true, .fill = shade}));
        for (int i = 0; i < prices; ++i) {
            book.blank(row, firstPrice + i,
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
                QStringLiteral("上の見出しは容量の端数です。法人向けは左の容量に 0 ～ 9 を、"
                               "個人向けは 0.0 ～ 0.9 を足して下さい。"),
                book.look({.size = 9}));
    book.page("A1:L25", 0.6, 0.5);
    return book.save();
}

}  // namespace akarix
