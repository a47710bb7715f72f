#pragma once

#include <array>
#include <optional>
#include <vector>

#include "output/Pen.h"
#include "output/PrintColumn.h"
#include "platform/dao/Recordset.h"
#include "platform/runtime/Currency.h"
#include "platform/runtime/Variant.h"

namespace akarix {

class PrintSurface;
class ReportOwner;

/// All that the print engine knows of a report: filled by the caller before the run, moved on by it.
struct PrintReport {
    static constexpr int MaxLines = 3001;
    static constexpr int MaxColumns = 100;

    std::vector<QString> ScriptLines;
    ReportOwner* Owner = nullptr;     ///< stays from report to report
    PrintSurface* Surface = nullptr;  ///< of the run under way, for the owner to draw on
    Pen pen;
    Int16 PageNo = 1;
    bool PagesFollow = false;  ///< behind the page that ends, in the run under way

    // --- detail rows, printed after each playing of the script when DetailMode is set
    bool DetailMode = false;
    std::optional<Recordset> DetailSet;
    Int16 ColCount;
    Int16 DetailTop;
    Int16 DetailLeft;
    Int16 RowsOnPage;
    Int16 RowsPerPage;  ///< holds from one report to the next until a script sets it
    bool DetailEnded = false;
    bool NoTopRule = false;     ///< no rule below the heading
    bool NoPageTotals = false;  ///< the owner's NoTotalAction instead of the page's totals
    QString GroupField;         ///< a change of this field prints a subtotal; empty: no groups
    Variant GroupValue = Variant::Null();
    std::array<Currency, MaxColumns> PageTotal;
    std::array<Currency, MaxColumns> RunTotal;
    std::array<Currency, MaxColumns> SpareTotal;  ///< the caller's own; the engine only clears them

    /// Everything as for a new report, but what holds from report to report.
    void Init();
    /// Raises 9 when the script is full.
    void AddLine(const QString& line);
    /// Raises 9 outside 0 to 99.
    PrintColumn& Column(int index);
    /// The owner; raises 91 when there is none.
    ReportOwner& owner() const;

 private:
    std::array<PrintColumn, MaxColumns> columns_;
};

}  // namespace akarix
