#include "output/PrintReport.h"

#include "platform/runtime/RuntimeError.h"

namespace akarix {

void PrintReport::Init() {
    ScriptLines.clear();
    pen.Init();
    PageNo = 1;
    DetailMode = DetailEnded = NoTopRule = NoPageTotals = false;
    ColCount = DetailTop = DetailLeft = RowsOnPage = 0;
    GroupField.clear();
    GroupValue = Variant::Null();
    columns_.fill({});
    PageTotal.fill({});
    RunTotal.fill({});
    SpareTotal.fill({});
}

void PrintReport::AddLine(const QString& line) {
    if (ScriptLines.size() >= MaxLines) throw RuntimeError(9);
    ScriptLines.push_back(line);
}

PrintColumn& PrintReport::Column(int index) {
    if (index < 0 || index >= MaxColumns) throw RuntimeError(9);
    return columns_[static_cast<size_t>(index)];
}

ReportOwner& PrintReport::owner() const {
    if (!Owner) throw RuntimeError(91);
    return *Owner;
}

}  // namespace akarix
