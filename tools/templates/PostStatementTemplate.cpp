#include "StatementTable.h"
#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

constexpr int kFirstLabel = 7, kLastLabel = 12, kHeadRow = 16, kFirstDetail = 17, kPageTotal = 51;
constexpr uint32_t kShade = 0xE4EAF0;

// The closing block cuts the lines otherwise, A to I and J to O: its words must find room there too.
constexpr StatementBlock kBlocks[] = {
    {u"A", u"D", 4, 19, u"番号", LXW_ALIGN_NONE, "0"},
    {u"E", u"I", 5, 27, u"得意先コード", LXW_ALIGN_RIGHT, "0"},
    {u"J", u"X", 15, 17, u"預金者名", LXW_ALIGN_LEFT, "@"},
    {u"Y", u"AF", 8, 14, u"金額", LXW_ALIGN_RIGHT, "#,##0"},
    {u"AG", u"AG", 1, 132, u"記号-番号", LXW_ALIGN_CENTER, "@"},
};

constexpr const char16_t* kLabels[] = {u"契約種別", u"受入事務センター", u"委託者コード",
                                       u"委託者名", u"振替日",           u"委託者口座番号"};

void AddConsignor(TemplateBook& book) {
    int row = kFirstLabel;
    for (const char16_t* label : kLabels) {
        book.framed(u"A%1:K%1"_s.arg(row), QString::fromUtf16(label),
                    {.size = 10, .align = LXW_ALIGN_CENTER, .framed = true, .fill = kShade});
        book.framed(u"L%1:AG%1"_s.arg(row), QString(),
                    {.size = 10,
                     .numberFormat = "@",
                     .shrink = true,
                     .framed = true,
                     .firstLine = row == kFirstLabel,
                     .lastLine = row == kLastLabel});
        ++row;
    }
}

}  // namespace

bool WritePostStatementTemplate(const QString& path) {
    TemplateBook book(path);
    AddStatementHead(book, kBlocks, kHeadRow, kShade);
    book.rows(1, 1, 12);
    book.rows(2, 2, 16.5);
    book.rows(3, 3, 28);
    book.rows(4, 4, 8);
    book.rows(5, 6, 14.25);
    book.rows(kFirstLabel, kLastLabel, 16.5);
    book.rows(13, 13, 6);
    book.rows(14, 14, 13.5);
    book.rows(15, 15, 3);
    book.rows(kHeadRow, kHeadRow, 18);
    book.rows(kFirstDetail, kPageTotal, 15.5);

    book.merged("AC2:AG2", QString(),
                book.look({.size = 10, .align = LXW_ALIGN_RIGHT, .numberFormat = "@", .shrink = true}));
    book.merged("A3:AG3", u"郵便局 口座振替明細表"_s,
                book.look({.size = 18, .bold = true, .align = LXW_ALIGN_CENTER}));
    book.merged("P5:AG5", DealerBlock::name(), book.look({.size = 11, .align = LXW_ALIGN_RIGHT}));
    book.merged("P6:AG6", DealerBlock::contact(), book.look({.size = 9, .align = LXW_ALIGN_RIGHT}));
    AddConsignor(book);
    book.merged("A14:AG14", u"次のとおり口座振替を請求します。"_s, book.look({.size = 10}));

    for (const StatementBlock& block : kBlocks) {
        TemplateBook::Look look{.size = 10,
                                .align = block.align,
                                .numberFormat = block.numberFormat,
                                .shrink = true,
                                .framed = true};
        for (int row = kFirstDetail; row <= kPageTotal; ++row) {
            look.lastLine = row >= kPageTotal - 1;
            look.bold = row == kPageTotal;
            book.framed(RangeOf(block, row), QString(), look);
        }
    }
    book.page("A1:AG51", 0.45, 0.4);
    return book.save();
}

}  // namespace akarix
