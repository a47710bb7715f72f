#include "masters/PriceList.h"

#include <vector>

#include "masters/CapacityKind.h"
#include "output/EX.h"
#include "output/PrintRun.h"
#include "platform/runtime/Literals.h"
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

const std::vector<Page>& PagesOf(const CapacityKind& kind) {
    static const std::vector<Page> whole{{u" AND Capa>=  0 AND Capa<200", 0},
                                         {u" AND Capa>=200 AND Capa<400", 200}};
    static const std::vector<Page> tenths{{u" AND Capa>= 0 AND Capa<20", 0},
                                          {u" AND Capa>=20 AND Capa<40", 20},
                                          {u" AND Capa>=40 AND Capa<60", 40}};
    return kind.perUnit == 1 ? whole : tenths;
}

void FillPage(const QString& pattern, const CapacityKind& kind, const Page& page) {
    ExcelCell(u"H2"_s, pattern);
    ExcelCell(u"C5:L24"_s, {});
    Recordset rows = gDb->OpenRecordset(
        u"SELECT * FROM Tnk "
        " WHERE Ptn="_s +
        pattern + QString::fromUtf16(page.filter) + u" ORDER BY Capa"_s);
    for (; !rows.Eof(); rows.MoveNext()) {
        const CapacityPlace place = PlaceOf(kind.index(MoneyOf(rows[u"Capa"_s]) - Currency(page.base)));
        ExcelCell(CellAddress(u"C"_s, kFirstRow, place.column, place.row), NumStr(MoneyOf(rows[u"Tanka"_s])));
    }
    for (int row = 0; row < kPageRows; ++row)
        ExcelCell(CellAddress(u"B"_s, kFirstRow, 0, row), NumStr(page.base + row * kind.rowStep));
}

}  // namespace

const CapacityKind* StoredKind(const QString& pattern) {
    return CapacityKindOf(
        IntegerOf(FirstValue(u"SELECT TOP 1 Kubun FROM Tnk WHERE Ptn="_s + pattern, u"Kubun"_s)));
}

void PrintPriceList(const QString& pattern) {
    const CapacityKind* kind = StoredKind(pattern);
    if (kind == nullptr) return;
    PrintRun run(u"価格表"_s);
    const std::vector<Page>& pages = PagesOf(*kind);
    for (size_t i = 0; i < pages.size(); ++i) {
        run.next(static_cast<int>(i), static_cast<int>(pages.size()));
        ExcelOpen(u"価格表"_s);
        FillPage(pattern, *kind, pages[i]);
        ExcelPrintPage();
        ExcelClose();
    }
}

}  // namespace akarix
