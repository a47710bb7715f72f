#pragma once

#include <QString>
#include <cstdint>

struct lxw_workbook;
struct lxw_worksheet;
struct lxw_format;

namespace akarix {

/// A new .xlsx file whose Normal font is ＭＳ Ｐゴシック 11, as the reader's column widths expect it. Stands
/// under a temporary name beside its place until save() has succeeded.
class WorkbookWriter {
 public:
    explicit WorkbookWriter(const QString& path);
    ~WorkbookWriter();
    WorkbookWriter(const WorkbookWriter&) = delete;
    WorkbookWriter& operator=(const WorkbookWriter&) = delete;

    lxw_workbook* book() const { return book_; }
    /// A format in the Normal font, owned by the workbook.
    lxw_format* newFormat() const;
    /// Columns count from 0 here, as the library has it.
    static void setColumnWidth(lxw_worksheet* sheet, uint16_t first, uint16_t last, int pixels,
                               lxw_format* format = nullptr);
    /// To be called once, last. False when the file cannot be written.
    bool save();

 private:
    QString path_, temporary_;
    lxw_workbook* book_ = nullptr;
};

}  // namespace akarix
