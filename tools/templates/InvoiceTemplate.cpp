#include <array>

#include "TemplateBook.h"
#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

constexpr uint32_t kShade = 0xE4EAF0;
constexpr int kFirstLine = 23, kLastLine = 30, kLastRow = 35;
// The "_ " keeps figures off the rule at their right.
constexpr const char* kReading = "#,##0.0_ ";
constexpr const char* kCount = "#,##0.0_ ;-#,##0.0_ ;";  // lines without a quantity (tax) show none
constexpr const char* kAmount = "#,##0_ ";
constexpr const char* kAsText = "@";

/// A column of the two tables; from and to count from 0 within a half.
struct Column {
    int from, to;
    const char16_t* head;
    lxw_format_alignments align;
    const char* numberFormat;
};

constexpr std::array<Column, 5> kLineColumns{{{0, 2, u"月　日", LXW_ALIGN_CENTER, kAsText},
                                              {3, 11, u"品　　　名", LXW_ALIGN_LEFT, kAsText},
                                              {12, 14, u"数 量", LXW_ALIGN_RIGHT, kCount},
                                              {15, 20, u"単 価", LXW_ALIGN_RIGHT, kAmount},
                                              {21, 21, u"金　額", LXW_ALIGN_RIGHT, kAmount}}};

constexpr std::array<Column, 3> kMeterColumns{{{0, 2, u"検針日", LXW_ALIGN_CENTER, kAsText},
                                               {3, 11, u"メーター検針", LXW_ALIGN_LEFT, kAsText},
                                               {12, 14, u"m³", LXW_ALIGN_RIGHT, kReading}}};

/// One of the two equal halves of the sheet.
class Half {
 public:
    Half(TemplateBook& book, int firstColumn) : book_(book), first_(firstColumn) {}

    void fill(const QString& title) {
        put(1, 0, 21, title, {.size = 20, .bold = true, .align = LXW_ALIGN_CENTER, .numberFormat = kAsText});
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
        lines();
        payment();
    }

 private:
    static constexpr TemplateBook::Look headLook{
        .align = LXW_ALIGN_CENTER, .shrink = true, .framed = true, .fill = kShade};

    void dealer() {
        constexpr int from = 10, to = 21;
        put(7, from, to, DealerBlock::name(), {.size = 13, .bold = true, .shrink = true});
        put(8, from, to, u"〒000-0000"_s, {});
        put(9, from, to, u"○○県○○市○○町 0-0-0"_s, {.shrink = true});
        put(10, from, to, DealerBlock::contact(), {.shrink = true});
        put(11, from, to, u"登録番号　T0000000000000"_s, {.shrink = true});
    }

    void amountDue() {
        put(15, 0, 2, u"ご請求\n金　額"_s,
            {.bold = true,
             .align = LXW_ALIGN_CENTER,
             .fill = kShade,
             .outline = LXW_BORDER_MEDIUM,
             .wrap = true});
        put(15, 3, 14, {},
            {.size = 24,
             .bold = true,
             .align = LXW_ALIGN_CENTER,
             .numberFormat = kAsText,
             .shrink = true,
             .outline = LXW_BORDER_MEDIUM});
        put(15, 15, 21, u"※前月までの残高を含みます"_s, {.size = 8, .shrink = true});
    }

    void meters() {
        for (const Column& c : kMeterColumns) {
            put(17, c.from, c.to, QString::fromUtf16(c.head), headLook);
            for (int row = 18; row <= 20; ++row)
                put(row, c.from, c.to, {}, cellLook(c, row == 20));
        }
        put(17, 16, 21, u"領　収　印"_s, headLook);
        merge(18, 16, 20, 21, {}, {.outline = LXW_BORDER_THIN});
    }

    void lines() {
        for (const Column& c : kLineColumns) {
            put(kFirstLine - 1, c.from, c.to, QString::fromUtf16(c.head), headLook);
            for (int row = kFirstLine; row <= kLastLine; ++row)
                put(row, c.from, c.to, {}, cellLook(c, row == kLastLine));
        }
    }

    void payment() {
        merge(32, 0, 34, 2, u"振込先"_s,
              {.align = LXW_ALIGN_CENTER, .fill = kShade, .outline = LXW_BORDER_THIN});
        merge(32, 3, 34, 21,
              u" ○○銀行　○○支店　普通預金　0000000\n"
              " 口座名義　カ）サンプルガス\n"
              " 振込手数料はお客様のご負担でお願いいたします。"_s,
              {.outline = LXW_BORDER_THIN, .wrap = true});
        put(kLastRow, 0, 21, u"口座振替をご利用のお客様は、ご指定の口座から振り替えさせていただきます。"_s,
            {.size = 8, .shrink = true});
    }

    static TemplateBook::Look cellLook(const Column& column, bool last) {
        return {.align = column.align,
                .numberFormat = column.numberFormat,
                .shrink = true,
                .framed = true,
                .lastLine = last};
    }

    void put(int row, int from, int to, const QString& text, const TemplateBook::Look& look) {
        merge(row, from, row, to, text, look);
    }
    void merge(int row, int from, int lastRowOfBlock, int to, const QString& text,
               const TemplateBook::Look& look) {
        book_.block(row, first_ + from, lastRowOfBlock, first_ + to, text, book_.look(look));
    }

    TemplateBook& book_;
    int first_;
};

}  // namespace

bool WriteInvoiceTemplate(const QString& path) {
    constexpr int leftHalf = 1, rightHalf = 29, cut = 26;
    TemplateBook book(path);
    std::vector<int> half{17, 17, 17};
    half.insert(half.end(), 9, 23);
    half.insert(half.end(), 3, 21);
    half.insert(half.end(), 6, 12);
    half.push_back(92);
    std::vector<int> widths = half;
    widths.insert(widths.end(), 6, 9);
    widths.insert(widths.end(), half.begin(), half.end());
    book.columns(widths);

    constexpr double small = 6, text = 12.5;
    book.rows(1, 1, 30);
    book.rows(2, 4, small);
    book.rows(5, 5, 26);
    book.rows(6, 6, small);
    book.rows(7, 7, 18);
    book.rows(8, 11, text);
    book.rows(12, 14, small);
    book.rows(15, 15, 36);
    book.rows(16, 16, 8);
    book.rows(17, 17, 15);
    book.rows(18, 20, 18);
    book.rows(21, 21, 8);
    book.rows(22, 22, 15);
    book.rows(kFirstLine, kLastLine, 19);
    book.rows(31, 31, 8);
    book.rows(32, 34, 14);
    book.rows(kLastRow, kLastRow, 14);

    Half(book, leftHalf).fill(u"請　求　書"_s);
    Half(book, rightHalf).fill(u"請　求　書（控）"_s);
    lxw_format* cutLine = book.look({.cutLine = true});
    for (int row = 1; row <= kLastRow; ++row)
        book.blank(row, cut, cutLine);
    book.page("A1:AX35", 0.45, 0.4, TemplateBook::Paper::Wide);
    return book.save();
}

}  // namespace akarix
