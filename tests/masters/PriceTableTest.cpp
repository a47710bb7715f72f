#include "masters/PriceTable.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <vector>

#include "platform/runtime/Conversion.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

TariffBand Band(int st, int ed, const char* kihon, const char* tanka) {
    return {static_cast<std::int16_t>(st), static_cast<std::int16_t>(ed), CCur(QString(kihon)),
            CCur(QString(tanka))};
}

/// The rows of a table, cells joined by blanks; a cell without a charge is "-".
std::string Shown(const PriceTable& table) {
    QStringList rows;
    for (const PriceTable::Row& row : table.Rows()) {
        QStringList cells;
        for (const QString& cell : row)
            cells += cell.isEmpty() ? u"-"_s : cell;
        rows += cells.join(u' ');
    }
    return rows.join(u'\n').toStdString();
}

TEST(PriceTable, LaysABandOutByTenths) {
    struct Case {
        const char* what;
        TariffBand band;
        const char* rows;
    };
    const std::vector<Case> cases = {
        {"from 0", Band(0, 1, "1500", "300"),
         "0 1,500 1,530 1,560 1,590 1,620 1,650 1,680 1,710 1,740 1,770\n"
         "1 1,800 1,830 1,860 1,890 1,920 1,950 1,980 2,010 2,040 2,070"},
        {"a price counts from the band's start", Band(8, 8, "1000", "10"),
         "8 1,000 1,001 1,002 1,003 1,004 1,005 1,006 1,007 1,008 1,009"},
        {"half a yen is rounded up, not dropped", Band(5, 5, "0", "5"), "5 - 1 1 2 2 3 3 4 4 5"},
        {"fractions of the unit price", Band(1, 1, "0.4", "12.3456"), "1 - 2 3 4 5 7 8 9 10 12"},
        {"upside down", Band(5, 4, "100", "1"), ""},
        {"the last usage there is", Band(32767, 32767, "1", "0"), "32767 1 1 1 1 1 1 1 1 1 1"},
    };
    for (const Case& c : cases) {
        PriceTable table;
        table.AddTenths(c.band);
        EXPECT_EQ(Shown(table), c.rows) << c.what;
    }
}

TEST(PriceTable, WholeUnitsRunOnFromBandToBand) {
    PriceTable table;
    table.AddWhole(Band(0, 14, "1000", "10"));
    table.AddWhole(Band(15, 29, "2000", "1"));
    EXPECT_EQ(Shown(table),
              "0 1,000 1,010 1,020 1,030 1,040 1,050 1,060 1,070 1,080 1,090\n"
              "10 1,100 1,110 1,120 1,130 1,140 2,015 2,016 2,017 2,018 2,019\n"
              "20 2,020 2,021 2,022 2,023 2,024 2,025 2,026 2,027 2,028 2,029")
        << "the second band is priced by its usage, not by what lies above its start";
    table.AddWhole(Band(100, 100, "0", "0"));
    EXPECT_EQ(table.Rows().back()[0], u"100"_s) << "a full row is followed by a new one";
    table.Clear();
    table.AddWhole(Band(3, 3, "7", "0"));
    EXPECT_EQ(Shown(table), "3 7 - - - - - - - - -");
}

TEST(PriceTable, TenthsEndARunningRow) {
    PriceTable table;
    table.AddWhole(Band(1, 1, "5", "0"));
    table.AddTenths(Band(2, 2, "6", "0"));
    table.AddWhole(Band(3, 3, "7", "0"));
    EXPECT_EQ(Shown(table),
              "1 5 - - - - - - - - -\n"
              "2 6 6 6 6 6 6 6 6 6 6\n"
              "3 7 - - - - - - - - -");
}

}  // namespace
}  // namespace akarix
