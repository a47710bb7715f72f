#include "TemplateBook.h"

namespace akarix {

namespace {

constexpr int kFirstLine = 23, kLastLine = 30, kLastRow = 35;
// The "_ " keeps figures off the rule at their right.
constexpr const char* kReading = "#,##0.0_ ";
constexpr const char* kCount = "#,##0.0_ ;-#,##0.0_ ;";  // lines without a quantity (tax) show none
constexpr const char* kAmount = "#,##0_ ";

/// A column of the two tables; from and to count from 0 within a half.
struct Column {
    int from, to;
    const char16_t* head;
    lxw_format_alignments align;
    const char* numberFormat;
};

constexpr Column kLineColumns[] = {{0, 2, u"月　日", kCentre, kAsText},
                                   {3, 11, u"品　　　名", kLeft, kAsText},
                                   {12, 14, u"数 量", kRight, kCount},
                                   {15, 20, u"単 価", kRight, kAmount},
                                   {21, 21, u"金　額", kRight, kAmount}};

constexpr Column kMeterColumns[] = {{0, 2, u"検針日", kCentre, kAsText},
                                    {3, 11, u"メーター検針", kLeft, kAsText},
                                    {12, 14, u"m³", kRight, kReading}};

/// One of the two equal halves of the sheet.
class Half {
 public:
    Half(TemplateBook& book, int firstColumn) : book_(book), first_(firstColumn) {}

    void fill(const QString& title) {
        put(1, 0, 21, title, {.size = 20, .bold = true, .align = kCentre, .numberFormat = kAsText});
        put(5, 0, 14, {},
            {.size = 15,
             .bold = true,
             .numberFormat = kAsText,
             .shrink = true,
             .underline = LXW_BORDER_MEDIUM});
        put(8, 0, 9, u"毎度ありがとうございます。"_s, {});
        put(9, 0, 9, u"下記のとおりご請求申し上げます。"_s, {});
        dealer();
        amountDue();
        meters();
        table(kLineColumns, kFirstLine - 1, kLastLine);
        payment();
    }

 private:
    static constexpr Look headLook{.align = kCentre, .shrink = true, .framed = true, .fill = kShade};

    void dealer() {
        constexpr int from = 10, to = 21;
        put(7, from, to, DealerName(), {.size = 13, .bold = true, .shrink = true});
        put(8, from, to, u"〒000-0000"_s, {});
        put(9, from, to, u"○○県○○市○○町 0-0-0"_s, {.shrink = true});
        put(10, from, to, DealerContact(), {.shrink = true});
        put(11, from, to, u"登録番号　T0000000000000"_s, {.shrink = true});
    }

    void amountDue() {
        put(15, 0, 2, u"ご請求\n金　額"_s,
            {.bold = true, .align = kCentre, .fill = kShade, .outline = LXW_BORDER_MEDIUM, .wrap = true});
        put(15, 3, 14, {},
            {.size = 24,
             .bold = true,
             .align = kCentre,
             .numberFormat = kAsText,
             .shrink = true,
             .outline = LXW_BORDER_MEDIUM});
        put(15, 15, 21, u"※前月までの残高を含みます"_s, {.size = 8, .shrink = true});
    }

    void meters() {
        table(kMeterColumns, 17, 20);
        put(17, 16, 21, u"領　収　印"_s, headLook);
        merge(18, 16, 20, 21, {}, {.outline = LXW_BORDER_THIN});
    }

    void payment() {
        merge(32, 0, 34, 2, u"振込先"_s, {.align = kCentre, .fill = kShade, .outline = LXW_BORDER_THIN});
        merge(32, 3, 34, 21,
              u" ○○銀行　○○支店　普通預金　0000000\n"
              " 口座名義　カ）サンプルガス\n"
              " 振込手数料はお客様のご負担でお願いいたします。"_s,
              {.outline = LXW_BORDER_THIN, .wrap = true});
        put(kLastRow, 0, 21, u"口座振替をご利用のお客様は、ご指定の口座から振り替えさせていただきます。"_s,
            {.size = 8, .shrink = true});
    }

    void table(std::span<const Column> columns, int headRow, int lastRow) {
        for (const Column& column : columns) {
            put(headRow, column.from, column.to, QString::fromUtf16(column.head), headLook);
            Look look{
                .align = column.align, .numberFormat = column.numberFormat, .shrink = true, .framed = true};
            for (int row = headRow + 1; row <= lastRow; ++row) {
                look.lastLine = row == lastRow;
                put(row, column.from, column.to, {}, look);
            }
        }
    }
    void put(int row, int from, int to, const QString& text, const Look& look) {
        merge(row, from, row, to, text, look);
    }
    void merge(int row, int from, int lastRowOfBlock, int to, const QString& text, const Look& look) {
        book_.block(row, first_ + from, lastRowOfBlock, first_ + to, text, look);
    }

    TemplateBook& book_;
    int first_;
};

}  // namespace

void MakeInvoice(TemplateBook& book) {
    constexpr int leftHalf = 1, rightHalf = 29, cut = 26;
    std::vector<int> half{17, 17, 17};
    half.insert(half.end(), 9, 23);
    half.insert(half.end(), 3, 21);
    half.insert(half.end(), 6, 12);
    half.push_back(92);
    std::vector<int> widths = half;
    widths.insert(widths.end(), 6, 9);
    widths.insert(widths.end(), half.begin(), half.end());
    book.columns(widths);
    book.rows({{1, 1, 30},
               {2, 4, 6},
               {5, 5, 26},
               {6, 6, 6},
               {7, 7, 18},
               {8, 11, 12.5},
               {12, 14, 6},
               {15, 15, 36},
               {16, 16, 8},
               {17, 17, 15},
               {18, 20, 18},
               {21, 21, 8},
               {22, 22, 15},
               {23, 30, 19},
               {31, 31, 8},
               {32, 35, 14}});

    Half(book, leftHalf).fill(u"請　求　書"_s);
    Half(book, rightHalf).fill(u"請　求　書（控）"_s);
    for (int row = 1; row <= kLastRow; ++row)
        book.block(row, cut, row, cut, {}, {.cutLine = true});
    book.page("A1:AX35", 0.45, 0.4, TemplateBook::Paper::Wide);
}

}  // namespace akarix
