#pragma once

#include <QString>

#include "platform/runtime/Currency.h"

namespace akarix {

struct PrintColumn;
struct PrintReport;
class PrintSurface;

/// The rows of a recordset below a played script, with headings and totals.
class DetailRows {
 public:
    DetailRows(PrintReport& report, PrintSurface& surface) : report_(report), surface_(surface) {}

    void MeasureColumns();
    /// One page of rows; true when the data have ended. A field that is not there leaves the text of the cell
    /// before. Any other error is told, and the next page tries again with the row it came to; when it cannot
    /// print that one either, the error is raised, for no later page could.
    bool PrintPage();

 private:
    bool printPage();
    void heading();
    void groupChange();
    void row();
    void cell(const PrintColumn& column, int index);
    void fetch(const PrintColumn& column, int index);
    void addToTotals(int index, Currency value);

    PrintReport& report_;
    PrintSurface& surface_;
    QString text_;         ///< of the cell last fetched
    bool failed_ = false;  ///< the page before, and no row has been printed since
};

}  // namespace akarix
