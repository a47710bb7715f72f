#include "TemplateBook.h"

namespace akarix {

namespace {

constexpr TableColumn kBankColumns[] = {
    {u"A", u"D", 13, u"得意先", kRight, "0"},      {u"E", u"L", 16, u"銀行-支店-種別-口座", kCentre, kAsText},
    {u"M", u"S", 24, u"預金者名", kLeft, kAsText}, {u"T", u"Z", 24, u"得意先名", kLeft, kAsText},
    {u"AA", u"AH", 12, u"金額", kRight, "#,##0"},  {u"AI", u"AP", 13, u"備考", kLeft, kAsText},
};

// The closing block cuts the lines otherwise, A to I and J to O: its words must find room there too.
constexpr TableColumn kPostColumns[] = {
    {u"A", u"D", 19, u"番号", LXW_ALIGN_NONE, "0"},      {u"E", u"I", 27, u"得意先コード", kRight, "0"},
    {u"J", u"X", 17, u"預金者名", kLeft, kAsText},       {u"Y", u"AF", 14, u"金額", kRight, "#,##0"},
    {u"AG", u"AG", 132, u"記号-番号", kCentre, kAsText},
};

}  // namespace

void MakeDebitTotal(TemplateBook& book) {
    constexpr int margin = 36, label = 26, colon = 28, value = 70;
    std::vector<int> widths{margin, margin};
    widths.insert(widths.end(), 5, label);  // C to G
    widths.push_back(colon);
    widths.insert(widths.end(), 5, value);  // I to M
    widths.insert(widths.end(), 2, margin);
    book.columns(widths);
    book.rows({{1, 1, 24}, {2, 2, 36}, {3, 4, 20}, {5, 10, 30}, {11, 20, 18}});

    book.put(u"A2:O2"_s, {}, {.size = 22, .bold = true, .align = kCentre});
    int row = 5;
    for (const QString& name :
         {u"委託者コード"_s, u"委託者名"_s, u"合計件数"_s, u"合計金額"_s, u"再振替日"_s}) {
        // The last one is the post office's alone; the bank's sheet empties it, so nothing is ruled there.
        constexpr int retransferLine = 9;
        const bool isFigure = name.startsWith(u"合計"_s);
        Look look{.size = 14,
                  .align = LXW_ALIGN_DISTRIBUTED,
                  .numberFormat = kAsText,
                  .underline = row != retransferLine ? LXW_BORDER_THIN : LXW_BORDER_NONE};
        book.put(u"C%1:G%1"_s.arg(row), name, look);
        look.align = kCentre;
        look.shrink = true;
        book.put(u"H%1"_s.arg(row), u"："_s, look);
        look.align = isFigure ? kRight : kLeft;
        look.bold = isFigure;
        book.put(u"I%1:M%1"_s.arg(row), {}, look);
        ++row;
    }
    book.put(u"C11:M11"_s, u"上記のとおり口座振替の請求データを提出します。"_s, {.size = 11});
    book.put(u"H13:M13"_s, DealerName(), {.size = 14, .align = kRight});
    book.put(u"H14:M14"_s, DealerContact(), {.size = 10, .align = kRight});
    book.framed(u"L16:M16"_s, u"受付印"_s, {.size = 10, .align = kCentre, .fill = kShade});
    book.framed(u"L17:M20"_s, {}, {.align = kCentre, .lastLine = true});
    book.page("A1:O45", 0.8, 0.5);
}

void MakeBankStatement(TemplateBook& book) {
    constexpr int headRow = 4, firstDetail = 5, lastDetail = 46;
    for (const TableColumn& column : kBankColumns)
        book.head(column, headRow);
    book.columns(kBankColumns);
    book.rows({{1, 1, 27}, {2, 2, 16.5}, {3, 3, 13.5}, {4, 4, 18}, {5, 46, 15.25}, {47, 47, 19.5}});

    book.put(u"A1:L1"_s, {}, {.size = 12, .bold = true, .numberFormat = kAsText, .shrink = true});
    book.put(u"M1:AB1"_s, u"口 座 振 替 明 細 表"_s, {.size = 18, .bold = true, .align = kCentre});
    book.put(u"A2:S2"_s, DealerName(), {.size = 10});
    book.put(u"A3:S3"_s, DealerContact(), {.size = 8});
    book.put(u"AC2:AL2"_s, {}, {.size = 11, .align = kRight, .numberFormat = kAsText, .shrink = true});
    book.put(u"AM2:AP2"_s, {}, {.size = 9, .align = kRight, .numberFormat = kAsText, .shrink = true});
    for (const TableColumn& column : kBankColumns)
        book.lines(column, firstDetail, lastDetail);
    Look total{.size = 10,
               .bold = true,
               .align = kCentre,
               .numberFormat = kAsText,
               .shrink = true,
               .lastLine = true};
    book.framed(u"A47:S47"_s, u"合　　計"_s, total);
    total.align = kRight;
    book.framed(u"T47:Z47"_s, {}, total);
    total.numberFormat = "#,##0";
    book.framed(u"AA47:AH47"_s, {}, total);
    total.numberFormat = kAsText;
    book.framed(u"AI47:AP47"_s, {}, total);
    book.page("A1:AP47", 0.5, 0.4);
}

void MakePostStatement(TemplateBook& book) {
    constexpr int firstLabel = 7, lastLabel = 12, headRow = 16, firstDetail = 17, lastDetail = 50,
                  pageTotal = 51;
    for (const TableColumn& column : kPostColumns)
        book.head(column, headRow);
    book.columns(kPostColumns);
    book.rows({{1, 1, 12},
               {2, 2, 16.5},
               {3, 3, 28},
               {4, 4, 8},
               {5, 6, 14.25},
               {7, 12, 16.5},
               {13, 13, 6},
               {14, 14, 13.5},
               {15, 15, 3},
               {16, 16, 18},
               {17, 51, 15.5}});

    book.put(u"AC2:AG2"_s, {}, {.size = 10, .align = kRight, .numberFormat = kAsText, .shrink = true});
    book.put(u"A3:AG3"_s, u"郵便局 口座振替明細表"_s, {.size = 18, .bold = true, .align = kCentre});
    book.put(u"P5:AG5"_s, DealerName(), {.size = 11, .align = kRight});
    book.put(u"P6:AG6"_s, DealerContact(), {.size = 9, .align = kRight});
    int row = firstLabel;
    for (const QString& label : {u"契約種別"_s, u"受入事務センター"_s, u"委託者コード"_s, u"委託者名"_s,
                                 u"振替日"_s, u"委託者口座番号"_s}) {
        book.framed(u"A%1:K%1"_s.arg(row), label, {.size = 10, .align = kCentre, .fill = kShade});
        book.framed(u"L%1:AG%1"_s.arg(row), {},
                    {.size = 10,
                     .numberFormat = kAsText,
                     .shrink = true,
                     .firstLine = row == firstLabel,
                     .lastLine = row == lastLabel});
        ++row;
    }
    book.put(u"A14:AG14"_s, u"次のとおり口座振替を請求します。"_s, {.size = 10});
    for (const TableColumn& column : kPostColumns) {
        book.lines(column, firstDetail, lastDetail, {.size = 10});
        book.lines(column, pageTotal, pageTotal, {.size = 10, .bold = true});
    }
    book.page("A1:AG51", 0.45, 0.4);
}

}  // namespace akarix
