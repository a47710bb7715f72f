#include "TemplateBook.h"

namespace akarix {

namespace {

struct Block {
    explicit Block(const QString& range) {
        const QByteArray name = range.toLatin1();
        row = static_cast<int>(lxw_name_to_row(name)) + 1;
        column = lxw_name_to_col(name) + 1;
        const bool isCell = !name.contains(':');
        lastRow = isCell ? row : static_cast<int>(lxw_name_to_row_2(name)) + 1;
        lastColumn = isCell ? column : lxw_name_to_col_2(name) + 1;
    }
    int row, column, lastRow, lastColumn;
};

QString RangeOf(const TableColumn& column, int row) {
    return u"%1%3:%2%3"_s.arg(QString::fromUtf16(column.first), QString::fromUtf16(column.last)).arg(row);
}

}  // namespace

TemplateBook::TemplateBook(const QString& path)
    : writer_(path), sheet_(workbook_add_worksheet(writer_.book(), "Sheet1")) {
    worksheet_gridlines(sheet_, LXW_HIDE_ALL_GRIDLINES);
}

lxw_format* TemplateBook::formatOf(const Look& look) {
    for (const auto& [known, made] : looks_)
        if (known == look) return made;
    lxw_format* format = writer_.newFormat();
    format_set_font_size(format, look.size);
    if (look.bold) format_set_bold(format);
    format_set_align(format, static_cast<uint8_t>(look.align));
    format_set_align(format, LXW_ALIGN_VERTICAL_CENTER);
    format_set_num_format(format, look.numberFormat);
    if (look.shrink) format_set_shrink(format);
    if (look.fill) format_set_bg_color(format, look.fill);
    if (look.framed) {
        // Hair lines between the rows of a table, so that the eye finds the columns first.
        if (!look.openLeft) format_set_left(format, LXW_BORDER_THIN);
        if (!look.openRight) format_set_right(format, LXW_BORDER_THIN);
        format_set_top(format, look.fill || look.firstLine ? LXW_BORDER_THIN : LXW_BORDER_HAIR);
        format_set_bottom(format, look.fill || look.lastLine ? LXW_BORDER_THIN : LXW_BORDER_HAIR);
    }
    if (look.outline != LXW_BORDER_NONE) format_set_border(format, static_cast<uint8_t>(look.outline));
    if (look.underline != LXW_BORDER_NONE) format_set_bottom(format, static_cast<uint8_t>(look.underline));
    if (look.wrap) format_set_text_wrap(format);
    if (look.cutLine) format_set_left(format, LXW_BORDER_DASHED);
    looks_.emplace_back(look, format);
    return format;
}

void TemplateBook::columns(const std::vector<int>& pixels) {
    for (size_t i = 0; i < pixels.size(); ++i) {
        const auto column = static_cast<uint16_t>(i);
        if (pixels[i] == 0) {
            // A width of 0 alone is taken for a mistake by some programs, which then show the column.
            lxw_row_col_options hidden{.hidden = 1, .level = 0, .collapsed = 0};
            worksheet_set_column_opt(sheet_, column, column, LXW_DEF_COL_WIDTH, nullptr, &hidden);
            continue;
        }
        WorkbookWriter::setColumnWidth(sheet_, column, column, pixels[i]);
    }
}

void TemplateBook::columns(std::span<const TableColumn> columns) {
    std::vector<int> pixels(static_cast<size_t>(Block(RangeOf(columns.front(), 1)).column - 1), 0);
    for (const TableColumn& column : columns)
        pixels.resize(static_cast<size_t>(Block(RangeOf(column, 1)).lastColumn), column.pixels);
    this->columns(pixels);
}

void TemplateBook::rows(std::initializer_list<Rows> rows) {
    for (const auto& [first, last, points] : rows)
        for (int row = first; row <= last; ++row)
            worksheet_set_row(sheet_, static_cast<lxw_row_t>(row - 1), points, nullptr);
}

void TemplateBook::put(const QString& range, const QString& text, const Look& look) {
    const Block at(range);
    block(at.row, at.column, at.lastRow, at.lastColumn, text, look);
}

void TemplateBook::block(int row, int column, int lastRow, int lastColumn, const QString& text,
                         const Look& look) {
    const auto r = static_cast<lxw_row_t>(row - 1);
    const auto c = static_cast<lxw_col_t>(column - 1);
    const QByteArray utf8 = text.toUtf8();
    if (row == lastRow && column == lastColumn)
        worksheet_write_string(sheet_, r, c, utf8, formatOf(look));
    else
        worksheet_merge_range(sheet_, r, c, static_cast<lxw_row_t>(lastRow - 1),
                              static_cast<lxw_col_t>(lastColumn - 1), utf8, formatOf(look));
}

void TemplateBook::framed(const QString& range, const QString& text, Look look) {
    look.framed = true;
    put(range, {}, look);
    const Block at(range);
    for (int column = at.lastColumn; column >= at.column; --column) {
        look.openLeft = column != at.column;
        look.openRight = column != at.lastColumn;
        for (int row = at.row; row <= at.lastRow; ++row)
            block(row, column, row, column, {}, look);
    }
    if (!text.isEmpty()) block(at.row, at.column, at.row, at.column, text, look);
}

void TemplateBook::head(const TableColumn& column, int row) {
    framed(RangeOf(column, row), QString::fromUtf16(column.head),
           {.align = kCentre, .shrink = true, .fill = kShade});
}

void TemplateBook::lines(const TableColumn& column, int firstRow, int lastRow, Look look) {
    look.align = column.align;
    look.numberFormat = column.numberFormat;
    look.shrink = true;
    for (int row = firstRow; row <= lastRow; ++row) {
        look.lastLine = row == lastRow;
        framed(RangeOf(column, row), {}, look);
    }
}

void TemplateBook::page(const char* area, double topInches, double bottomInches, Paper paper) {
    constexpr uint8_t a4 = 9;
    constexpr double sideInches = 0.35;
    worksheet_set_paper(sheet_, a4);
    if (paper == Paper::Wide)
        worksheet_set_landscape(sheet_);
    else
        worksheet_set_portrait(sheet_);
    worksheet_set_margins(sheet_, sideInches, sideInches, topInches, bottomInches);
    worksheet_center_horizontally(sheet_);
    worksheet_fit_to_pages(sheet_, 1, 1);
    worksheet_print_area(sheet_, lxw_name_to_row(area), lxw_name_to_col(area), lxw_name_to_row_2(area),
                         lxw_name_to_col_2(area));
}

}  // namespace akarix
