#include "admin/TemplateCheck.h"

#include <algorithm>
#include <array>
#include <map>

#include "platform/runtime/Literals.h"
#include "platform/sheet/SheetPainter.h"

namespace akarix::admin {

namespace {

/// Cells that a report writes, and a text as wide as any it usually puts there.
struct Written {
    const char16_t* report;
    const char16_t* cells;
    const char16_t* text;
    bool rightHalf = false;  ///< of a sheet that is whole with either half
};

constexpr const char16_t *kInvoice = u"請求書", *billingList = u"請求一覧表", *customers = u"取引先一覧",
                         *debitTotal = u"口座振替合計表", *bank = u"口座振替明細表",
                         *post = u"郵便局口座振替明細表", *prices = u"価格表";

constexpr Written kWrittenCells[] = {
    {kInvoice, u"A5", u"株式会社　山田商店 様"},
    {kInvoice, u"AC5", u"株式会社　山田商店 様", true},
    {kInvoice, u"D15", u"¥1,234,567"},
    {kInvoice, u"AF15", u"¥1,234,567", true},
    {kInvoice, u"A18:A20,A23:A30", u"12/31"},
    {kInvoice, u"AC18:AC20,AC23:AC30", u"12/31", true},
    {kInvoice, u"D18:D20,D23:D30", u"当月ガス料金 指針 : 1234.5"},
    {kInvoice, u"AF18:AF20,AF23:AF30", u"当月ガス料金 指針 : 1234.5", true},
    {kInvoice, u"M18:M20,M23:M30", u"1234.5"},
    {kInvoice, u"AO18:AO20,AO23:AO30", u"1234.5", true},
    {kInvoice, u"P23:P30", u"12,345"},
    {kInvoice, u"AR23:AR30", u"12,345", true},
    {kInvoice, u"V23:V30", u"123,456"},
    {kInvoice, u"AX23:AX30", u"123,456", true},
    {billingList, u"F2", u"平成35年12月"},
    {billingList, u"B5:B61", u"123456"},
    {billingList, u"C5:C61", u"株式会社　山田商店"},
    {billingList, u"D5:E61", u"12345.6"},
    {billingList, u"F5:F61", u"1234.5"},
    {billingList, u"G5:K61", u"123456"},
    {billingList, u"F63", u"12345.6"},
    {billingList, u"G63:K63", u"12345678"},
    {customers, u"F3", u"銀行-支店"},
    {customers, u"G3", u"口座番号"},
    {customers, u"A4:A61", u"123456"},
    {customers, u"B4:B61", u"ﾔﾏﾀﾞｼｮｳﾃﾝ"},
    {customers, u"C4:C61", u"株式会社　山田商店"},
    {customers, u"D4:D61", u"012-3456"},
    {customers, u"E4:E61", u"○○県○○市○○町１－２－３"},
    {customers, u"F4:G61", u"012-345-6789"},
    {debitTotal, u"A2", u"ゆうちょ銀行ＦＤ合計表"},
    {debitTotal, u"I5", u"1234567890"},
    {debitTotal, u"I6", u"ｱｶﾘｸｽｶﾞｽ(ｶ"},
    {debitTotal, u"I7", u"1234件"},
    {debitTotal, u"I8", u"12,345,678円"},
    {debitTotal, u"I9", u"2023/12/31"},
    {bank, u"A1", u"銀行コード : 1234"},
    {bank, u"AC2", u"平成35年12月分"},
    {bank, u"AM2", u"12ﾍﾟｰｼﾞ"},
    {bank, u"A5:A46", u"123456"},
    {bank, u"E5:E46", u"1234-123-1-1234567"},
    {bank, u"M5:M46", u"ﾔﾏﾀﾞｼｮｳﾃﾝ"},
    {bank, u"T5:T46", u"株式会社　山田商店"},
    {bank, u"AA5:AA46", u"123456"},
    {bank, u"T47", u"1234件"},
    {bank, u"AA47", u"12345678"},
    {post, u"AC2", u"2023年12月31日"},
    {post, u"L7:L12", u"ｱｶﾘｸｽｶﾞｽ(ｶ"},
    {post, u"A17:A50", u"1234"},
    {post, u"E17:E50", u"123456"},
    {post, u"J17:J51", u"この頁の小計件数金額   34件"},
    {post, u"Y17:Y51", u"12,345,678"},
    {post, u"AG17:AG50", u"12345-12345678"},
    {prices, u"H2", u"123"},
    {prices, u"B5:B24", u"190"},
    {prices, u"C5:L24", u"123456"},
};

enum class Fault { Outside, Hidden, Covered, Low, Narrow };

QString TextOf(Fault fault) {
    switch (fault) {
        case Fault::Outside:
            return u"印刷の範囲の外にあります"_s;
        case Fault::Hidden:
            return u"隠れた行か列にあります"_s;
        case Fault::Covered:
            return u"ほかのセルとの結合に隠れます"_s;
        case Fault::Low:
            return u"行が低く、文字が切れます"_s;
        case Fault::Narrow:
            break;
    }
    return u"幅が足りません"_s;
}

class Checker {
 public:
    explicit Checker(const Sheet& sheet) : sheet_(sheet) {}

    bool outside(CellAddress at) const {
        return sheet_.page.printArea && !sheet_.page.printArea->contains(at);
    }

    std::optional<Fault> faultOf(CellAddress at) const {
        if (outside(at)) return Fault::Outside;
        CellRange block{at, at};
        for (const CellRange& merge : sheet_.merges)
            if (merge.contains(at)) block = merge;
        if (block.first != at) return Fault::Covered;
        if (sheet_.columnWidth(at.column) <= 0 || sheet_.rowHidden(at.row)) return Fault::Hidden;
        double height = 0;
        for (int row = at.row; row <= block.last.row; ++row)
            height += sheet_.rowHeight(row);
        if (height < sheet_.styleAt(at).font.size) return Fault::Low;
        return isNarrow(block) ? std::optional(Fault::Narrow) : std::nullopt;
    }

 private:
    bool blank(CellAddress at) const {
        const auto cell = sheet_.cells.find(at);
        const bool empty =
            cell == sheet_.cells.end() || (cell->second.text.isEmpty() && !cell->second.number);
        return empty && std::none_of(sheet_.merges.begin(), sheet_.merges.end(),
                                     [at](const CellRange& merge) { return merge.contains(at); });
    }

    /// By letters of half an em, since the templates' own fonts need not be at hand. What shrinks may do so
    /// to half.
    bool isNarrow(const CellRange& block) const {
        const CellAddress at = block.first;
        const CellStyle& style = sheet_.styleAt(at);
        double letters = 0;
        for (const QChar letter : sheet_.shownText(at)) {
            const bool half =
                letter.unicode() < 0x100 || (letter.unicode() >= 0xFF61 && letter.unicode() <= 0xFF9F);
            letters += half ? 0.5 : 1;
        }
        double room = 0;
        for (int column = at.column; column <= block.last.column; ++column)
            room += sheet_.columnWidth(column);
        const bool text = !sheet_.cells.at(at).number;
        if (style.wrap && text) return room < style.font.size;
        if (text && !style.shrink && block.first == block.last)  // it runs on over empty cells
            for (CellAddress next{at.row, at.column + 1};
                 !outside(next) && next.column <= kLastSheetColumn && blank(next); ++next.column)
                room += sheet_.columnWidth(next.column);
        return letters * style.font.size * (style.shrink ? 0.5 : 1) > room;
    }

    const Sheet& sheet_;
};

std::vector<CellAddress> AddressesOf(const Written& written) {
    std::vector<CellAddress> addresses;
    for (const QString& block : QString::fromUtf16(written.cells).split(u',')) {
        const CellRange range = ParseRange(block);
        for (int row = range.first.row; row <= range.last.row; ++row)
            for (int column = range.first.column; column <= range.last.column; ++column)
                addresses.push_back({row, column});
    }
    return addresses;
}

QString NameOf(CellAddress at) {
    QString letters;
    for (int column = at.column; column > 0; column = (column - 1) / 26)
        letters.prepend(QChar(u'A' + (column - 1) % 26));
    return letters + QString::number(at.row);
}

}  // namespace

QStringList ReportNames() {
    QStringList names;
    for (const Written& written : kWrittenCells) {
        const QString name = QString::fromUtf16(written.report);
        if (!names.contains(name)) names += name;
    }
    return names;
}

QStringList TemplateFaults(const Sheet& sheet, const QString& report) {
    Sheet filled = sheet;
    const Checker checker(filled);
    std::array<bool, 2> printed{};  // of the halves
    for (const Written& written : kWrittenCells) {
        if (report != QStringView(written.report)) continue;
        for (const CellAddress at : AddressesOf(written)) {
            filled.setValue(NameOf(at), QString::fromUtf16(written.text));
            printed[written.rightHalf] = printed[written.rightHalf] || !checker.outside(at);
        }
    }
    QStringList faults;
    for (const Written& written : kWrittenCells) {
        // A half may be left off the paper, but not both.
        if (report != QStringView(written.report) ||
            (!printed[written.rightHalf] && printed[!written.rightHalf]))
            continue;
        std::map<Fault, QStringList> found;
        for (const CellAddress at : AddressesOf(written))
            if (const auto fault = checker.faultOf(at)) found[*fault] += NameOf(at);
        for (const auto& [fault, cells] : found) {
            const QString more = cells.size() > 1 ? u" など %1 か所"_s.arg(cells.size()) : QString();
            faults += u"セル %1%2: %3。"_s.arg(cells.first(), more, TextOf(fault));
        }
    }
    const size_t pages = LayOutSheet(sheet).size();
    if (pages > 1) faults += u"1 枚に収まらず、%1 枚に分かれます。"_s.arg(pages);
    if ((sheet.page.headerText + sheet.page.footerText).contains(u"&N", Qt::CaseInsensitive))
        faults += u"総ページ数は、そのページまでの数になります。"_s;  // the end is not known before it comes
    return faults + sheet.warnings;
}

}  // namespace akarix::admin
