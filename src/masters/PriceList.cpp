#include "masters/PriceList.h"

#include <vector>

#include "masters/CapacityKind.h"
#include "output/EX.h"
#include "output/PrintRun.h"
#include "store/FieldValue.h"
#include "store/Lookup.h"
#include "store/dbAccess.h"
#include "values/CellAddress.h"
#include "values/NumStr.h"

namespace akarix {

namespace {

constexpr int kPageRows = 20;
constexpr int kFirstRow = 5;

struct Page {
    const char16_t* filter;
    int base;  ///< the page's first capacity
};

const std::vector<Page>& pagesOf(const CapacityKind& kind) {
    static const std::vector<Page> whole{{u" AND Capa>=  0 AND Capa<200", 0},
                                         {u" AND Capa>=200 AND Capa<400", 200}};
    static const std::vector<Page> tenths{{u" AND Capa>= 0 AND Capa<20", 0},
                                          {u" AND Capa>=20 AND Capa<40", 20},
                                          {u" AND Capa>=40 AND Capa<60", 40}};
    return kind.perUnit == 1 ? whole : tenths;
}

void fillPage(const QString& pattern, const CapacityKind& kind, const Page& page) {
    ExcelCell(QStringLiteral("H2"), pattern);
    ExcelCell(QStringLiteral("C5:L24"), {});
    Recordset rows =
        gDb->OpenRecordset(QStringLiteral("SELECT * FROM Tnk "
                                          " WHERE Ptn=") +
                           pattern + QString::fromUtf16(page.filter) + QStringLiteral(" ORDER BY Capa"));
    for (; !rows.Eof(); rows.MoveNext()) {
        const CapacityPlace place =
            PlaceOf(kind.index(moneyOf(rows[QStringLiteral("Capa")]) - Currency(page.base)));
        ExcelCell(CellAddress(QStringLiteral("C"), kFirstRow, place.column, place.row),
                  NumStr(moneyOf(rows[QStringLiteral("Tanka")])));
    }
    for (int row = 0; row < kPageRows; ++row) {
        ExcelCell(CellAddress(QStringLiteral("B"), kFirstRow, 0, row),
                  NumStr(page.base + row * kind.rowStep));
    }
}

}  // namespace

const CapacityKind* StoredKind(const QString& pattern) {
    return CapacityKindOf(integerOf(FirstValue(
        QStringLiteral("SELECT TOP 1 Kubun FROM Tnk WHERE Ptn=") + pattern, QStringLiteral("Kubun"))));
}

void PrintPriceList(const QString& pattern) {
    const CapacityKind* kind = StoredKind(pattern);
    if (kind == nullptr) return;
    PrintRun run(QStringLiteral("価格表"));
    const std::vector<Page>& pages = pagesOf(*kind);
    for (size_t i = 0; i < pages.size(); ++i) {
        run.next(static_cast<int>(i), static_cast<int>(pages.size()));
        ExcelOpen(QStringLiteral("価格表"));
        fillPage(pattern, *kind, pages[i]);
        ExcelPrintPage();
        ExcelClose();
    }
}

}  // namespace akarix
