#pragma once

#include <QString>

#include "platform/dao/Recordset.h"
#include "store/Settings.h"

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
/// are .xlsx files in the folder Prt below the current directory, sheet "Sheet1"; a missing one raises 1004.
void ExcelOpen(const QString& name);
/// \param rows detail rows of a page, the one for the total included
/// \param firstRow the row before the first detail row
void ExcelOpenPaged(const QString& name, int rows, int firstRow);
void ExcelCell(const QString& address, const QString& text);
/// Whether what is written into a cell of the open template will be seen on paper.
bool ExcelPrints(const QString& address);
/// Merges a block, or takes it apart when the flag is "0".
void ExcelMerge(const QString& address, const QString& flag);
/// Shows the page (gPrintPreview), blocking until it is closed, or adds it to the document for the current
/// printer. The template stays open for the next page. Raises 32755 when the operator wants to see no more.
/// \param pagesFollow whether the document goes on behind this page
void ExcelPrintPage(bool pagesFollow = false);
/// Sends the document off: one job, one file, however many pages. Raises 482 when it cannot be written.
void ExcelClose();

void SetReport(ReportForm* form, Recordset set);
/// The paged loop; closes the report. The recordset must not be empty (3021).
void ExcelRunPaged();

/// Copies a grid to a new workbook, which is saved where the operator says; cancelled, nothing is left. The
/// date stands at the top right, the title in the middle of row 2, line1 and line2 in row 4, the grid from
/// row 6 on. A file that cannot be written is told in a message.
void GridToExcel(const QString& title, const QString& line1, const QString& line2, const FlexGrid& grid);

}  // namespace akarix
