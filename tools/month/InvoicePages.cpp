#include "month/InvoicePages.h"

#include <map>

#include "ledger/Rows.h"

namespace akarix::month {

InvoicePages invoicePagesOf(Database& db, int year, int month) {
    constexpr int linesOfSheet = 8;
    const QString ofMonth = QStringLiteral(" WHERE Nendo=%1 AND Getudo=%2").arg(year).arg(month);
    std::map<std::int64_t, int> lines;
    for (const auto& row : readNumbers(db, QStringLiteral("SELECT Deal FROM Dud") + ofMonth))
        ++lines[row[0]];
    InvoicePages pages;
    for (const auto& row :
         readNumbers(db, QStringLiteral("SELECT Deal,ZenkaiGaku,Gaku,NGaku FROM TtoD INNER JOIN Deal ON "
                                        "TtoD.Deal=Deal.Code") +
                             ofMonth + QStringLiteral(" AND NoSeikyu<>1"))) {
        if (row[1] + row[2] - row[3] == 0) continue;
        const int sheets = lines[row[0]] / linesOfSheet + 1;  // the gas line is one more
        pages.all += sheets;
        pages.ofSeveral += sheets > 1 ? 1 : 0;
    }
    return pages;
}

}  // namespace akarix::month
