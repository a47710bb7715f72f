#pragma once

#include <QString>
#include <functional>

#include "platform/jet/Recordset.h"

namespace akarix {

class FlexGrid;

/// The screen behind a paged report: it writes the cells.
class ReportForm {
 public:
    virtual ~ReportForm() = default;
    virtual void ClrDetail() = 0;
    virtual void PrintOutHead(int page) = 0;
    /// \param row the sheet row to fill. May move or replace the recordset.
    virtual void PrintOutDetail(int row, Recordset& set) = 0;
    virtual void PrintOutDetailGokei(int line, int firstRow, int page) = 0;
};

/// The Excel driver: one open template at a time, filled by cell address and printed page by page. Templates
/// are .xlsx files in the folder Prt below the current directory, sheet "Sheet1".
void ExcelOpen(const QString& name);
void ExcelOpenPaged(const QString& name, int rows, int firstRow);
void ExcelCell(const QString& address, const QString& text);
void ExcelMerge(const QString& address, const QString& flag);
/// Shows the page (gPrintPreview) or sends it to the current printer. The template stays open for the next
/// page.
void ExcelPrintPage();
void ExcelClose();

void SetReport(ReportForm* form, Recordset set);
/// The paged loop; closes the report.
void ExcelRunPaged();

/// Copies a grid to a new workbook and asks where to save it. Errors are dropped.
void GridToExcel(const QString& title, const QString& line1, const QString& line2, FlexGrid& grid);

}  // namespace akarix
