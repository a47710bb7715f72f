#include "platform/sheet/WorkbookWriter.h"

#include <xlsxwriter.h>

#include <QFile>
#include <filesystem>
#include <utility>

#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

constexpr const char* kNormalFont = "ＭＳ Ｐゴシック";
constexpr double kNormalDigitPixels = 8;

}  // namespace

WorkbookWriter::WorkbookWriter(const QString& path)
    : path_(path),
      temporary_(path + u".tmp"_s),
      book_(workbook_new(QFile::encodeName(temporary_).constData())) {
    // The library's first format is the workbook's Normal style.
    format_set_font_name(STAILQ_FIRST(book_->formats), kNormalFont);
}

WorkbookWriter::~WorkbookWriter() {
    if (book_) lxw_workbook_free(book_);
}

lxw_format* WorkbookWriter::newFormat() const {
    lxw_format* format = workbook_add_format(book_);
    format_set_font_name(format, kNormalFont);
    return format;
}

void WorkbookWriter::setColumnWidth(lxw_worksheet* sheet, uint16_t first, uint16_t last, int pixels,
                                    lxw_format* format) {
    // The library adds the padding of its own default font, whose digits are 7 pixels wide.
    constexpr double libraryPadding = 5.0 / 7;
    worksheet_set_column(sheet, first, last, pixels / kNormalDigitPixels - libraryPadding, format);
}

bool WorkbookWriter::save() {
    const auto place = [](const QString& name) { return std::filesystem::path(name.toStdU16String()); };
    std::error_code error;
    if (workbook_close(std::exchange(book_, nullptr)) == LXW_NO_ERROR) {
        std::filesystem::rename(place(temporary_), place(path_), error);
        if (!error) return true;
    }
    std::filesystem::remove(place(temporary_), error);
    return false;
}

}  // namespace akarix
