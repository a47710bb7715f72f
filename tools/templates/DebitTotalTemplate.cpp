#include "TemplateBook.h"
#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

constexpr int kFirstLine = 5, kRetransferLine = 9;

struct Line {
    const char16_t* label;
    lxw_format_alignments align;
};

// The last one is the post office's alone; the bank's sheet empties it, so nothing is ruled there.
constexpr Line kLines[] = {{u"委託者コード", LXW_ALIGN_LEFT},
                           {u"委託者名", LXW_ALIGN_LEFT},
                           {u"合計件数", LXW_ALIGN_RIGHT},
                           {u"合計金額", LXW_ALIGN_RIGHT},
                           {u"再振替日", LXW_ALIGN_LEFT}};

}  // namespace

bool WriteDebitTotalTemplate(const QString& path) {
    TemplateBook book(path);
    constexpr int margin = 36, label = 26, colon = 28, value = 70;
    std::vector<int> widths{margin, margin};
    widths.insert(widths.end(), 5, label);  // C to G
    widths.push_back(colon);
    widths.insert(widths.end(), 5, value);  // I to M
    widths.insert(widths.end(), 2, margin);
    book.columns(widths);
    book.rows(1, 1, 24);
    book.rows(2, 2, 36);
    book.rows(3, 4, 20);
    book.rows(kFirstLine, 9, 30);
    book.rows(10, 10, 30);
    book.rows(11, 20, 18);

    book.merged("A2:O2", QString(), book.look({.size = 22, .bold = true, .align = LXW_ALIGN_CENTER}));
    int row = kFirstLine;
    for (const Line& line : kLines) {
        const bool ruled = row != kRetransferLine;
        const auto look = [&](lxw_format_alignments align, bool bold = false) {
            return book.look({.size = 14,
                              .bold = bold,
                              .align = align,
                              .numberFormat = "@",
                              .shrink = align != LXW_ALIGN_DISTRIBUTED,
                              .underline = ruled ? LXW_BORDER_THIN : LXW_BORDER_NONE});
        };
        const QByteArray at = QByteArray::number(row);
        book.merged(("C" + at + ":G" + at).constData(), QString::fromUtf16(line.label),
                    look(LXW_ALIGN_DISTRIBUTED));
        book.text(("H" + at).constData(), u"："_s, look(LXW_ALIGN_CENTER));
        const bool figure = line.align == LXW_ALIGN_RIGHT;
        book.merged(("I" + at + ":M" + at).constData(), QString(), look(line.align, figure));
        ++row;
    }
    book.merged("C11:M11", u"上記のとおり口座振替の請求データを提出します。"_s, book.look({.size = 11}));
    book.merged("H13:M13", DealerBlock::name(), book.look({.size = 14, .align = LXW_ALIGN_RIGHT}));
    book.merged("H14:M14", DealerBlock::contact(), book.look({.size = 10, .align = LXW_ALIGN_RIGHT}));
    const TemplateBook::Look stamp{.size = 10, .align = LXW_ALIGN_CENTER, .framed = true, .fill = 0xE4EAF0};
    book.framed(u"L16:M16"_s, u"受付印"_s, stamp);
    book.framed(u"L17:M20"_s, QString(), {.align = LXW_ALIGN_CENTER, .framed = true, .lastLine = true});
    book.page("A1:O45", 0.8, 0.5);
    return book.save();
}

}  // namespace akarix
