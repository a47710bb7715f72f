#pragma once

#include <xlsxwriter.h>

#include <QString>
#include <span>
#include <utility>
#include <vector>

#include "platform/runtime/Literals.h"
#include "platform/sheet/WorkbookWriter.h"

namespace akarix {

constexpr lxw_format_alignments kLeft = LXW_ALIGN_LEFT, kRight = LXW_ALIGN_RIGHT, kCentre = LXW_ALIGN_CENTER;
constexpr std::uint32_t kShade = 0xE4EAF0;
constexpr const char* kAsText = "@";

/// How a cell looks.
struct Look {
    double size = 9;
    bool bold = false;
    lxw_format_alignments align = kLeft;
    const char* numberFormat = "General";
    bool shrink = false;
    bool framed = false;     ///< ruled around; a block as a whole, also when its cells are taken apart
    uint32_t fill = 0;       ///< 0 is none
    bool firstLine = false;  ///< framed, and closes the table above
    bool lastLine = false;   ///< framed, and closes the table below
    bool openLeft = false, openRight = false;        ///< framed, but without the line at that side
    lxw_format_borders outline = LXW_BORDER_NONE;    ///< on all four sides
    lxw_format_borders underline = LXW_BORDER_NONE;  ///< below
    bool cutLine = false;                            ///< dashed on the left
    bool wrap = false;
    friend bool operator==(const Look&, const Look&) = default;
};

/// A column of a table, which may take several of the sheet's.
struct TableColumn {
    const char16_t *first, *last;  ///< letters
    int pixels;                    ///< of one column of the sheet
    const char16_t* head;
    lxw_format_alignments align;
    const char* numberFormat;
};

/// A template in the making: one sheet "Sheet1" on A4, printed on one page. Rows and columns are
/// named as in addresses ("B5"). Whatever the program writes into has a format, so that a dealer who restyles
/// the file sees where things go.
class TemplateBook {
 public:
    explicit TemplateBook(const QString& path);

    struct Rows {
        int first, last;
        double points;
    };

    lxw_worksheet* sheet() const { return sheet_; }
    void columns(const std::vector<int>& pixels);  ///< 0 hides a column
    void columns(std::span<const TableColumn> columns);
    void rows(std::initializer_list<Rows> rows);
    /// A cell ("B5") or a block ("B5:C6"), which is merged.
    void put(const QString& range, const QString& text, const Look& look);
    void block(int row, int column, int lastRow, int lastColumn, const QString& text, const Look& look);
    void framed(const QString& range, const QString& text, Look look);
    void head(const TableColumn& column, int row);
    /// The lines of a table in one of its columns, in what the look says beside alignment and number.
    void lines(const TableColumn& column, int firstRow, int lastRow, Look look = {});
    enum class Paper { Upright, Wide };
    /// \param area the block that is printed
    void page(const char* area, double topInches, double bottomInches, Paper paper = Paper::Upright);
    bool save() { return writer_.save(); }

 private:
    lxw_format* formatOf(const Look& look);

    WorkbookWriter writer_;
    lxw_worksheet* sheet_;
    std::vector<std::pair<Look, lxw_format*>> looks_;
};

// The dealer's own name and address, placeholders until the dealer has typed them.
inline QString DealerName() {
    return u"株式会社 サンプルガス"_s;
}
inline QString DealerContact() {
    return u"TEL 000-000-0000  FAX 000-000-0000"_s;
}

void MakeBillingList(TemplateBook& book);
void MakeCustomerList(TemplateBook& book);
void MakePriceList(TemplateBook& book);
void MakeInvoice(TemplateBook& book);
void MakeDebitTotal(TemplateBook& book);
void MakeBankStatement(TemplateBook& book);
void MakePostStatement(TemplateBook& book);

}  // namespace akarix
