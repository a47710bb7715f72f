#include "platform/sheet/GridExport.h"

#include <xlsxwriter.h>

#include <QHash>

#include "platform/sheet/TypedValue.h"
#include "platform/sheet/WorkbookWriter.h"

namespace akarix {

namespace {

constexpr int kHiddenWidth = 10, kRightAligned = 7, kFirstCentered = 3, kLastCentered = 5;
constexpr int kTwipsPerPixel = 15;
constexpr lxw_row_t kHeadRow = 5;

class Export {
 public:
    Export(WorkbookWriter& writer, const GridSource& grid)
        : writer_(writer), grid_(grid), sheet_(workbook_add_worksheet(writer.book(), nullptr)) {
        for (int c = 0; c < static_cast<int>(grid.widths.size()); ++c)
            if (grid.widths[static_cast<size_t>(c)] > kHiddenWidth) shown_.push_back(c);
        text_ = cellFormat("@", LXW_ALIGN_LEFT);
        centered_ = cellFormat("@", LXW_ALIGN_CENTER);
        rightText_ = cellFormat("General", LXW_ALIGN_RIGHT);
        head_ = cellFormat("@", LXW_ALIGN_CENTER);
        format_set_bg_color(head_, 0xE4EAF0);
    }

    void write(const QString& title, const QString& subtitle, const QString& created, Progress& progress) {
        writeTop(title, subtitle, created);
        for (int row = 0; row < grid_.rows; ++row) {
            progress.step(row, grid_.rows);
            for (size_t k = 0; k < shown_.size(); ++k)
                writeCell(row, static_cast<lxw_col_t>(k), shown_[k]);
        }
        setUpPage();
    }

 private:
    lxw_format* cellFormat(const char* numberFormat, lxw_format_alignments alignment) {
        lxw_format* format = writer_.newFormat();
        format_set_num_format(format, numberFormat);
        format_set_align(format, static_cast<uint8_t>(alignment));
        format_set_border(format, LXW_BORDER_THIN);
        return format;
    }

    // A number keeps the look that it has on the screen: its commas, its places, its leading zeros.
    lxw_format* numberFormat(const TypedNumber& number, QStringView typed) {
        const bool padded = number.integerDigits > 1 && !number.thousands && typed.trimmed().startsWith(u'0');
        const int integers = padded ? number.integerDigits : 1;
        const bool thousands = number.thousands || (!padded && number.integerDigits <= 3);
        const int key = (thousands ? 1 : 0) + 2 * number.decimals + 1024 * integers;
        lxw_format*& format = numbers_[key];
        if (!format) {
            QByteArray code = thousands ? QByteArrayLiteral("#,##0") : QByteArray(integers, '0');
            if (number.decimals > 0) code += '.' + QByteArray(number.decimals, '0');
            format = cellFormat(code.constData(), LXW_ALIGN_RIGHT);
        }
        return format;
    }

    void writeCell(int row, lxw_col_t at, int column) {
        const auto line = kHeadRow + static_cast<lxw_row_t>(row);
        const QString text = grid_.text(row, column);
        const int alignment = grid_.alignments[static_cast<size_t>(column)];
        if (row > 0 && alignment == kRightAligned) {
            constexpr int longestNumber = 15;
            const auto number = ParseTypedNumber(text);
            if (number && number->integerDigits + number->decimals <= longestNumber) {
                worksheet_write_number(sheet_, line, at, number->value, numberFormat(*number, text));
                return;
            }
        }
        lxw_format* format = row == 0                                                    ? head_
                             : alignment == kRightAligned                                ? rightText_
                             : alignment >= kFirstCentered && alignment <= kLastCentered ? centered_
                                                                                         : text_;
        if (text.isEmpty())
            worksheet_write_blank(sheet_, line, at, format);
        else
            worksheet_write_string(sheet_, line, at, text.toUtf8().constData(), format);
    }

    void writeTop(const QString& title, const QString& subtitle, const QString& created) {
        const auto columns = static_cast<lxw_col_t>(shown_.size());
        lxw_format* large = writer_.newFormat();
        format_set_font_size(large, 18);
        constexpr double titleHeight = 24;
        worksheet_set_row(sheet_, 1, titleHeight, nullptr);
        worksheet_write_string(sheet_, 0, columns, created.toUtf8().constData(), nullptr);
        // A grid of one column has no column left of its middle, and stays without a title.
        if (columns > 1) {
            worksheet_write_string(sheet_, 1, static_cast<lxw_col_t>(columns / 2 - 1),
                                   title.toUtf8().constData(), large);
        }
        worksheet_write_string(sheet_, 3, 0, subtitle.toUtf8().constData(), nullptr);
        for (lxw_col_t k = 0; k < columns; ++k)
            WorkbookWriter::setColumnWidth(sheet_, k, k, pixels(k));
        constexpr int createdPixels = 150;
        WorkbookWriter::setColumnWidth(sheet_, columns, columns, createdPixels);
    }

    int pixels(size_t k) const { return grid_.widths[static_cast<size_t>(shown_[k])] / kTwipsPerPixel; }

    void setUpPage() {
        int width = 0;
        for (size_t k = 0; k < shown_.size(); ++k)
            width += pixels(k);
        constexpr int widestUpright = 900;  // wider would become too small to read
        if (width > widestUpright) worksheet_set_landscape(sheet_);
        worksheet_set_paper(sheet_, 9);
        worksheet_set_margins(sheet_, 0.5, 0.5, 0.6, 0.6);
        worksheet_fit_to_pages(sheet_, 1, 0);
        worksheet_repeat_rows(sheet_, kHeadRow, kHeadRow);
        worksheet_freeze_panes(sheet_, kHeadRow + 1, 0);
        worksheet_set_footer(sheet_, "&C&P / &N");
    }

    WorkbookWriter& writer_;
    const GridSource& grid_;
    lxw_worksheet* sheet_;
    std::vector<int> shown_;
    lxw_format *text_, *centered_, *rightText_, *head_;
    QHash<int, lxw_format*> numbers_;
};

}  // namespace

bool WriteGridWorkbook(const QString& path, const QString& title, const QString& subtitle,
                       const QString& created, const GridSource& grid, Progress& progress) {
    WorkbookWriter writer(path);
    Export(writer, grid).write(title, subtitle, created, progress);
    return writer.save();
}

}  // namespace akarix
