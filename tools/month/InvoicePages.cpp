#include "month/InvoicePages.h"

#include <map>

#include "ledger/Rows.h"
#include "platform/runtime/Literals.h"

namespace akarix::month {

InvoicePages InvoicePagesOf(Database& db, int year, int month) {
    constexpr int linesOfSheet = 8;
    const QString ofMonth = u" WHERE Nendo=%1 AND Getudo=%2"_s.arg(year).arg(month);
    std::map<std::int64_t, int> lines;
    for (const auto& row : ReadNumbers(db, u"SELECT Deal FROM Dud"_s + ofMonth))
        ++lines[row[0]];
    InvoicePages pages;
    for (const auto& row : ReadNumbers(db,
                                       u"SELECT Deal,ZenkaiGaku,Gaku,NGaku FROM TtoD INNER JOIN Deal ON "
                                       "TtoD.Deal=Deal.Code"_s +
                                           ofMonth + u" AND NoSeikyu<>1"_s)) {
        if (row[1] + row[2] - row[3] == 0) continue;
        const int sheets = lines[row[0]] / linesOfSheet + 1;  // the gas line is one more
        pages.all += sheets;
        pages.ofSeveral += sheets > 1 ? 1 : 0;
    }
    return pages;
}

}  // namespace akarix::month
