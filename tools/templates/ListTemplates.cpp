#include "TemplateBook.h"

namespace akarix {

namespace {

constexpr const char *kQuantity = "#,##0.0", *kAmount = "#,##0";

constexpr TableColumn kBillingColumns[] = {{u"B", u"B", 48, u"ｺｰﾄﾞ", kRight, "0"},
                                           {u"C", u"C", 152, u"得意先", kLeft, kAsText},
                                           {u"D", u"D", 62, u"前回検針値", kRight, kQuantity},
                                           {u"E", u"E", 62, u"今回検針値", kRight, kQuantity},
                                           {u"F", u"F", 58, u"使用量", kRight, kQuantity},
                                           {u"G", u"G", 66, u"使用料", kRight, kAmount},
                                           {u"H", u"H", 66, u"物販", kRight, kAmount},
                                           {u"I", u"I", 68, u"当月売上", kRight, kAmount},
                                           {u"J", u"J", 68, u"前月残", kRight, kAmount},
                                           {u"K", u"K", 72, u"請求額", kRight, kAmount}};

// Postal codes, telephones and account numbers are text: they keep their zeros.
constexpr TableColumn kCustomerColumns[] = {
    {u"A", u"A", 48, u"ｺｰﾄﾞ", kRight, "0"},     {u"B", u"B", 112, u"ﾌﾘｶﾞﾅ", kLeft, kAsText},
    {u"C", u"C", 138, u"名前", kLeft, kAsText}, {u"D", u"D", 58, u"〒", kCentre, kAsText},
    {u"E", u"E", 214, u"住所", kLeft, kAsText}, {u"F", u"F", 84, u"電話", kCentre, kAsText},
    {u"G", u"G", 84, u"FAX", kCentre, kAsText},
};

}  // namespace

void MakeBillingList(TemplateBook& book) {
    constexpr int headRow = 4, firstDetail = 5, lastDetail = 61, totalLabels = 62, totals = 63;
    book.columns(kBillingColumns);
    book.rows({{1, 2, 18}, {3, 3, 6}, {4, 4, 17.25}, {5, 61, 11.75}, {62, 62, 12.75}, {63, 63, 16.5}});

    book.put(u"B1:E2"_s, u"請 求 一 覧 表"_s, {.size = 18, .bold = true});
    // The month is written into F2 alone; the cells beside it stay free for it to spread.
    book.put(u"F2"_s, {}, {.size = 12, .bold = true, .numberFormat = kAsText});
    book.put(u"I1:K1"_s, DealerName(), {.size = 10, .align = kRight, .shrink = true});
    book.put(u"I2:K2"_s, DealerContact(), {.size = 8, .align = kRight, .shrink = true});
    for (const TableColumn& column : kBillingColumns) {
        const QString letter = QString::fromUtf16(column.first);
        book.head(column, headRow);
        book.lines(column, firstDetail, lastDetail);
        const bool isSummed = column.first[0] >= u'F';
        book.framed(letter + QString::number(totalLabels),
                    isSummed ? QString::fromUtf16(column.head) + u'計' : QString(),
                    {.size = 8, .align = kCentre, .shrink = true, .fill = kShade});
        book.lines(column, totals, totals, {.bold = true});
    }
    book.framed(u"C63"_s, u"合　計"_s, {.bold = true, .align = kCentre, .lastLine = true});
    book.page("A1:K63", 0.45, 0.4);
}

void MakeCustomerList(TemplateBook& book) {
    constexpr int headRow = 3, firstDetail = 4, lastDetail = 61;
    book.columns(kCustomerColumns);
    book.rows({{1, 1, 24}, {2, 2, 6}, {3, 3, 16.5}, {4, 61, 12.25}});
    book.put(u"A1:C1"_s, u"取 引 先 一 覧"_s, {.size = 18, .bold = true});
    book.put(u"E1:G1"_s, DealerName(), {.size = 10, .align = kRight, .shrink = true});
    for (const TableColumn& column : kCustomerColumns) {
        book.head(column, headRow);
        book.lines(column, firstDetail, lastDetail);
    }
    worksheet_set_header(book.sheet(), "&R&\"ＭＳ Ｐゴシック\"&9&D　　&P ページ");
    book.page("A1:G61", 0.6, 0.4);
}

void MakePriceList(TemplateBook& book) {
    constexpr int headRow = 4, firstDetail = 5, lastDetail = 24;
    constexpr int labelColumn = 2, firstPrice = 3, prices = 10;
    constexpr int unused = 0, labelWidth = 54, priceWidth = 64;
    std::vector<int> widths{unused, labelWidth};
    widths.insert(widths.end(), prices, priceWidth);
    book.columns(widths);
    book.rows({{1, 2, 21}, {3, 3, 15}, {4, 4, 24}, {5, 24, 32.5}, {25, 25, 20}});

    book.put(u"B1:E2"_s, u"価 格 表"_s, {.size = 22, .bold = true});
    book.put(u"F2:G2"_s, u"パターン"_s, {.size = 11, .align = kRight});
    book.put(u"H2"_s, {},
             {.size = 14, .bold = true, .align = kCentre, .numberFormat = "0", .underline = LXW_BORDER_THIN});
    book.put(u"I1:L1"_s, DealerName(), {.size = 11, .align = kRight, .shrink = true});
    book.put(u"I2:L2"_s, DealerContact(), {.size = 8, .align = kRight, .shrink = true});
    book.put(u"L3"_s, u"（単位：円）"_s, {.align = kRight});

    const auto cell = [&book](int row, int column, const QString& text, const Look& look) {
        book.block(row, column, row, column, text, look);
    };
    Look label{.size = 11, .align = kCentre, .framed = true, .fill = kShade};
    cell(headRow, labelColumn, u"容 量"_s, label);
    for (int i = 0; i < prices; ++i)
        cell(headRow, firstPrice + i, QString::number(i), label);
    label.numberFormat = "0";
    Look price{.size = 11, .align = kRight, .numberFormat = "#,##0_ ", .shrink = true, .framed = true};
    for (int row = firstDetail; row <= lastDetail; ++row) {
        constexpr int rowsOfABand = 5;  // a rule after every five rows guides the eye to its row label
        price.lastLine = (row - firstDetail + 1) % rowsOfABand == 0;
        cell(row, labelColumn, {}, label);
        for (int i = 0; i < prices; ++i)
            cell(row, firstPrice + i, {}, price);
    }
    // One sheet serves both kinds of price, so its heads name the step and not the capacity.
    book.put(u"B25:L25"_s,
             u"上の見出しは容量の端数です。法人向けは左の容量に 0 ～ 9 を、"
             "個人向けは 0.0 ～ 0.9 を足して下さい。"_s,
             {.size = 9});
    book.page("A1:L25", 0.6, 0.5);
}

}  // namespace akarix
