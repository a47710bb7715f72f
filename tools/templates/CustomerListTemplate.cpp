#include "TemplateBook.h"
#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

constexpr int kHeadRow = 3, kFirstDetail = 4, kLastDetail = 61;
constexpr uint32_t kShade = 0xE4EAF0;

struct Column {
    const char16_t* head;
    int pixels;
    lxw_format_alignments align;
    const char* numberFormat;
};

// Postal codes, telephones and account numbers are text: they keep their zeros.
constexpr Column kColumns[] = {{u"ｺｰﾄﾞ", 48, LXW_ALIGN_RIGHT, "0"}, {u"ﾌﾘｶﾞﾅ", 112, LXW_ALIGN_LEFT, "@"},
                               {u"名前", 138, LXW_ALIGN_LEFT, "@"}, {u"〒", 58, LXW_ALIGN_CENTER, "@"},
                               {u"住所", 214, LXW_ALIGN_LEFT, "@"}, {u"電話", 84, LXW_ALIGN_CENTER, "@"},
                               {u"FAX", 84, LXW_ALIGN_CENTER, "@"}};

}  // namespace

bool WriteCustomerListTemplate(const QString& path) {
    TemplateBook book(path);
    std::vector<int> widths;
    for (const Column& column : kColumns)
        widths.push_back(column.pixels);
    book.columns(widths);
    book.rows(1, 1, 24);
    book.rows(2, 2, 6);
    book.rows(kHeadRow, kHeadRow, 16.5);
    book.rows(kFirstDetail, kLastDetail, 12.25);

    book.merged("A1:C1", u"取 引 先 一 覧"_s, book.look({.size = 18, .bold = true}));
    book.merged("E1:G1", DealerBlock::name(),
                book.look({.size = 10, .align = LXW_ALIGN_RIGHT, .shrink = true}));

    lxw_format* head = book.look({.align = LXW_ALIGN_CENTER, .shrink = true, .framed = true, .fill = kShade});
    int at = 1;
    for (const Column& column : kColumns) {
        const Column& c = column;
        const auto look = [&](bool lastLine) {
            return book.look({.align = c.align,
                              .numberFormat = c.numberFormat,
                              .shrink = true,
                              .framed = true,
                              .lastLine = lastLine});
        };
        const QByteArray letter(1, static_cast<char>('A' + at - 1));
        book.text((letter + QByteArray::number(kHeadRow)).constData(), QString::fromUtf16(c.head), head);
        lxw_format* detail = look(false);
        for (int row = kFirstDetail; row < kLastDetail; ++row)
            book.blank(row, at, detail);
        book.blank(kLastDetail, at, look(true));
        ++at;
    }
    worksheet_set_header(book.sheet(), "&R&\"ＭＳ Ｐゴシック\"&9&D　　&P ページ");
    book.page("A1:G61", 0.6, 0.4);
    return book.save();
}

}  // namespace akarix
