#include "StatementTable.h"
#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

constexpr int kHeadRow = 4, kFirstDetail = 5, kLastDetail = 46, kTotals = 47;
constexpr uint32_t kShade = 0xE4EAF0;

constexpr StatementBlock kBlocks[] = {
    {u"A", u"D", 4, 13, u"得意先", LXW_ALIGN_RIGHT, "0"},
    {u"E", u"L", 8, 16, u"銀行-支店-種別-口座", LXW_ALIGN_CENTER, "@"},
    {u"M", u"S", 7, 24, u"預金者名", LXW_ALIGN_LEFT, "@"},
    {u"T", u"Z", 7, 24, u"得意先名", LXW_ALIGN_LEFT, "@"},
    {u"AA", u"AH", 8, 12, u"金額", LXW_ALIGN_RIGHT, "#,##0"},
    {u"AI", u"AP", 8, 13, u"備考", LXW_ALIGN_LEFT, "@"},
};

}  // namespace

bool WriteBankStatementTemplate(const QString& path) {
    TemplateBook book(path);
    AddStatementHead(book, kBlocks, kHeadRow, kShade);
    book.rows(1, 1, 27);
    book.rows(2, 2, 16.5);
    book.rows(3, 3, 13.5);
    book.rows(kHeadRow, kHeadRow, 18);
    book.rows(kFirstDetail, kLastDetail, 15.25);
    book.rows(kTotals, kTotals, 19.5);

    book.merged("A1:L1", QString(),
                book.look({.size = 12, .bold = true, .numberFormat = "@", .shrink = true}));
    book.merged("M1:AB1", u"口 座 振 替 明 細 表"_s,
                book.look({.size = 18, .bold = true, .align = LXW_ALIGN_CENTER}));
    book.merged("A2:S2", DealerBlock::name(), book.look({.size = 10}));
    book.merged("A3:S3", DealerBlock::contact(), book.look({.size = 8}));
    book.merged("AC2:AL2", QString(),
                book.look({.size = 11, .align = LXW_ALIGN_RIGHT, .numberFormat = "@", .shrink = true}));
    book.merged("AM2:AP2", QString(),
                book.look({.size = 9, .align = LXW_ALIGN_RIGHT, .numberFormat = "@", .shrink = true}));

    for (const StatementBlock& block : kBlocks) {
        TemplateBook::Look look{
            .align = block.align, .numberFormat = block.numberFormat, .shrink = true, .framed = true};
        for (int row = kFirstDetail; row <= kLastDetail; ++row) {
            look.lastLine = row == kLastDetail;
            book.framed(RangeOf(block, row), QString(), look);
        }
    }
    const TemplateBook::Look total{.size = 10,
                                   .bold = true,
                                   .align = LXW_ALIGN_RIGHT,
                                   .numberFormat = "@",
                                   .shrink = true,
                                   .framed = true,
                                   .lastLine = true};
    TemplateBook::Look label = total;
    label.align = LXW_ALIGN_CENTER;
    TemplateBook::Look money = total;
    money.numberFormat = "#,##0";
    book.framed(u"A47:S47"_s, u"合　　計"_s, label);
    book.framed(u"T47:Z47"_s, QString(), total);
    book.framed(u"AA47:AH47"_s, QString(), money);
    book.framed(u"AI47:AP47"_s, QString(), total);
    book.page("A1:AP47", 0.5, 0.4);
    return book.save();
}

}  // namespace akarix
