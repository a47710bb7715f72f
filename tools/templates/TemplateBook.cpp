#include "TemplateBook.h"

namespace akarix {

TemplateBook::TemplateBook(const QString& path)
    : writer_(path), sheet_(workbook_add_worksheet(writer_.book(), "Sheet1")) {
    worksheet_gridlines(sheet_, LXW_HIDE_ALL_GRIDLINES);
}

lxw_format* TemplateBook::look(const Look& look) {
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

void TemplateBook::rows(int first, int last, double points) {
    for (int row = first; row <= last; ++row)
        worksheet_set_row(sheet_, static_cast<lxw_row_t>(row - 1), points, nullptr);
}

void TemplateBook::text(const char* address, const QString& text, lxw_format* format) {
    worksheet_write_string(sheet_, lxw_name_to_row(address), lxw_name_to_col(address),
                           text.toUtf8().constData(), format);
}

void TemplateBook::blank(int row, int column, lxw_format* format) {
    worksheet_write_blank(sheet_, static_cast<lxw_row_t>(row - 1), static_cast<lxw_col_t>(column - 1),
                          format);
}

void TemplateBook::merged(const char* range, const QString& text, lxw_format* format) {
    block(static_cast<int>(lxw_name_to_row(range)) + 1, lxw_name_to_col(range) + 1,
          static_cast<int>(lxw_name_to_row_2(range)) + 1, lxw_name_to_col_2(range) + 1, text, format);
}

void TemplateBook::block(int row, int column, int lastRow, int lastColumn, const QString& text,
                         lxw_format* format) {
    const auto r = static_cast<lxw_row_t>(row - 1);
    const auto c = static_cast<lxw_col_t>(column - 1);
    const QByteArray utf8 = text.toUtf8();
    if (row == lastRow && column == lastColumn) {
        worksheet_write_string(sheet_, r, c, utf8.constData(), format);
    } else {
        worksheet_merge_range(sheet_, r, c, static_cast<lxw_row_t>(lastRow - 1),
                              static_cast<lxw_col_t>(lastColumn - 1), utf8.constData(), format);
    }
}

void TemplateBook::framed(const QString& range, const QString& text, const Look& look) {
    const QByteArray name = range.toLatin1();
    const lxw_row_t firstRow = lxw_name_to_row(name), lastRow = lxw_name_to_row_2(name);
    const lxw_col_t first = lxw_name_to_col(name), last = lxw_name_to_col_2(name);
    merged(name, QString(), nullptr);
    Look part = look;
    for (lxw_col_t column = first; column <= last; ++column) {
        part.openLeft = column != first;
        part.openRight = column != last;
        for (lxw_row_t row = firstRow; row <= lastRow; ++row)
            worksheet_write_blank(sheet_, row, column, this->look(part));
    }
    part = look;
    part.openRight = first != last;
    if (!text.isEmpty())
        worksheet_write_string(sheet_, firstRow, first, text.toUtf8().constData(), this->look(part));
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
