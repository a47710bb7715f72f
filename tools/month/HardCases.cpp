#include "month/HardCases.h"

#include <algorithm>
#include <set>

#include "ledger/Rows.h"
#include "month/Desk.h"
#include "platform/runtime/Currency.h"
#include "platform/runtime/Literals.h"

namespace akarix::month {

namespace {

using Row = std::vector<std::int64_t>;

template <class Condition>
std::int64_t CountOf(const std::vector<Row>& rows, const Condition& condition) {
    return std::count_if(rows.begin(), rows.end(), condition);
}

/// Tariffs whose basic charge is no whole yen.
std::set<std::int64_t> TariffsWithFractions(Database& db) {
    std::set<std::int64_t> patterns;
    for (const Row& row : ReadNumbers(db, u"SELECT Ptn,Kihon FROM GasKeisan"_s))
        if (row[1] % Currency::kScale != 0) patterns.insert(row[0]);
    return patterns;
}

}  // namespace

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

HardCases HardCasesOf(Database& db, const Desk& desk) {
    const int year = desk.options.year;
    const int month = desk.options.month;
    const QString ofMonth = u" WHERE Nendo=%1 AND Getudo=%2"_s.arg(year).arg(month);
    const auto readings = ReadNumbers(
        db, u"SELECT Suu,Gaku,TankaPtn FROM Dgd INNER JOIN Deal ON Dgd.Deal=Deal.Code"_s + ofMonth);
    const auto balances = ReadNumbers(db, u"SELECT ZenkaiGaku,GGaku,UGaku,NGaku FROM TtoD"_s + ofMonth);
    const auto lines = ReadNumbers(db, u"SELECT Suu,Tanka FROM Dud"_s + ofMonth);
    const std::set<std::int64_t> fractions = TariffsWithFractions(db);
    const auto& payments = desk.typed.payments;
    return {
        {u"締日後の入金"_s, std::count_if(payments.begin(), payments.end(),
                                          [](const auto& payment) { return payment.second.nextMonth; })},
        {u"過入金の残高"_s,
         CountOf(balances, [](const Row& row) { return row[0] + row[1] + row[2] - row[3] < 0; })},
        {u"マイナスの使用量"_s, CountOf(readings, [](const Row& row) { return row[0] < 0; })},
        {u"円未満のある料金"_s,
         CountOf(readings, [&](const Row& row) { return row[1] > 0 && fractions.contains(row[2]); })},
        {u"円未満のある売上"_s, CountOf(lines,
                                        [](const Row& row) {
                                            return row[0] * row[1] % (Currency::kScale * Currency::kScale) !=
                                                   0;
                                        })},
        {u"二頁以上の請求書"_s, InvoicePagesOf(db, year, month).ofSeveral},
        {u"請求後の売上伝票"_s, desk.lateSlips},
        {u"終わったリース"_s, desk.endedLeases},
        {u"検査で戻った依頼"_s, desk.refusedDisks},
    };
}

}  // namespace akarix::month
