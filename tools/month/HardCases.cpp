#include "month/HardCases.h"

#include <algorithm>
#include <set>

#include "ledger/Rows.h"
#include "month/Desk.h"
#include "month/InvoicePages.h"
#include "month/Options.h"

namespace akarix::month {

namespace {

constexpr std::int64_t scaledYen = 10000;

using Row = std::vector<std::int64_t>;

template <class Condition>
std::int64_t countOf(const std::vector<Row>& rows, const Condition& condition) {
    return std::count_if(rows.begin(), rows.end(), condition);
}

/// Tariffs whose basic charge is no whole yen.
std::set<std::int64_t> tariffsWithFractions(Database& db) {
    std::set<std::int64_t> patterns;
    for (const Row& row : readNumbers(db, QStringLiteral("SELECT Ptn,Kihon FROM GasKeisan"))) {
        if (row[1] % scaledYen != 0) patterns.insert(row[0]);
    }
    return patterns;
}

}  // namespace

HardCases hardCasesOf(Database& db, const Desk& desk) {
    const int year = desk.options.year;
    const int month = desk.options.month;
    const QString ofMonth = QStringLiteral(" WHERE Nendo=%1 AND Getudo=%2").arg(year).arg(month);
    const auto readings = readNumbers(
        db,
        QStringLiteral("SELECT Suu,Gaku,TankaPtn FROM Dgd INNER JOIN Deal ON Dgd.Deal=Deal.Code") + ofMonth);
    const auto balances =
        readNumbers(db, QStringLiteral("SELECT ZenkaiGaku,GGaku,UGaku,NGaku FROM TtoD") + ofMonth);
    const auto lines = readNumbers(db, QStringLiteral("SELECT Suu,Tanka FROM Dud") + ofMonth);
    const std::set<std::int64_t> fractions = tariffsWithFractions(db);
    const auto& payments = desk.typed.payments;
    return {
        {QStringLiteral("締日後の入金"),
         std::count_if(payments.begin(), payments.end(),
                       [](const auto& payment) { return payment.second.nextMonth; })},
        {QStringLiteral("過入金の残高"),
         countOf(balances, [](const Row& row) { return row[0] + row[1] + row[2] - row[3] < 0; })},
        {QStringLiteral("マイナスの使用量"), countOf(readings, [](const Row& row) { return row[0] < 0; })},
        {QStringLiteral("円未満のある料金"),
         countOf(readings, [&](const Row& row) { return row[1] > 0 && fractions.contains(row[2]); })},
        {QStringLiteral("円未満のある売上"),
         countOf(lines, [](const Row& row) { return row[0] * row[1] % (scaledYen * scaledYen) != 0; })},
        {QStringLiteral("二頁以上の請求書"), invoicePagesOf(db, year, month).ofSeveral},
        {QStringLiteral("請求後の売上伝票"), desk.lateSlips},
        {QStringLiteral("終わったリース"), desk.endedLeases},
        {QStringLiteral("検査で戻った依頼"), desk.refusedDisks},
    };
}

}  // namespace akarix::month
