#pragma once

#include <xlsxwriter.h>

#include <QString>
#include <utility>
#include <vector>

#include "platform/runtime/Literals.h"
#include "platform/sheet/WorkbookWriter.h"

namespace akarix {

/// A template in the making: one sheet "Sheet1" on A4, printed on one page. Rows and columns are
/// named as in addresses ("B5"). Whatever the program writes into has a format, so that a dealer who restyles
/// the file sees where things go.
class TemplateBook {
 public:
    explicit TemplateBook(const QString& path);

    struct Look {
        double size = 9;
        bool bold = false;
        lxw_format_alignments align = LXW_ALIGN_LEFT;
        const char* numberFormat = "General";
        bool shrink = false;
        bool framed = false;
        uint32_t fill = 0;                               ///< 0 is none
        bool firstLine = false;                          ///< framed, and closes the table above
        bool lastLine = false;                           ///< framed, and closes the table below
        bool openLeft = false, openRight = false;        ///< framed, but without the line at that side
        lxw_format_borders outline = LXW_BORDER_NONE;    ///< on all four sides
        lxw_format_borders underline = LXW_BORDER_NONE;  ///< below
        bool cutLine = false;                            ///< dashed on the left
        bool wrap = false;
        friend bool operator==(const Look&, const Look&) = default;
    };
    lxw_format* look(const Look& look);

    lxw_worksheet* sheet() const { return sheet_; }
    void columns(const std::vector<int>& pixels);  ///< 0 hides a column
    void rows(int first, int last, double points);
    void text(const char* address, const QString& text, lxw_format* format);
    void blank(int row, int column, lxw_format* format);
    void merged(const char* range, const QString& text, lxw_format* format);
    /// A block of one cell or more, merged where it is more.
    void block(int row, int column, int lastRow, int lastColumn, const QString& text, lxw_format* format);
    /// A merged block whose frame stays around it as a whole when its cells are taken apart.
    void framed(const QString& range, const QString& text, const Look& look);
    enum class Paper { Upright, Wide };
    /// \param area the block that is printed
    void page(const char* area, double topInches, double bottomInches, Paper paper = Paper::Upright);
    bool save() { return writer_.save(); }

 private:
    WorkbookWriter writer_;
    lxw_worksheet* sheet_;
    std::vector<std::pair<Look, lxw_format*>> looks_;
};

/// The dealer's own name and address, a placeholder until the dealer has typed it.
struct DealerBlock {
    static QString name() { return u"株式会社 サンプルガス"_s; }
    static QString contact() { return u"TEL 000-000-0000  FAX 000-000-0000"_s; }
};

bool WriteBillingListTemplate(const QString& path);
bool WriteCustomerListTemplate(const QString& path);
bool WriteInvoiceTemplate(const QString& path);
bool WriteDebitTotalTemplate(const QString& path);
bool WriteBankStatementTemplate(const QString& path);
bool WritePostStatementTemplate(const QString& path);
bool WritePriceListTemplate(const QString& path);

}  // namespace akarix
