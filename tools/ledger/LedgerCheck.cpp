#include "ledger/LedgerCheck.h"

#include <map>
#include <set>

#include "ledger/Rows.h"
#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

using Amounts = std::map<std::int32_t, std::int64_t>;

struct LedgerRow {
    std::int64_t zenkaiGaku = 0;
    std::int64_t gGaku = 0;
    std::int64_t uGaku = 0;
    std::int64_t gaku = 0;
    std::int64_t nGaku = 0;
    bool setByHand = false;
};

QString MonthCondition(int nendo, int getudo) {
    return u" WHERE Nendo=%1 AND Getudo=%2"_s.arg(nendo).arg(getudo);
}

/// Adds up the amounts of a source table by customer.
Amounts SumsOf(Database& db, const QString& table, int nendo, int getudo) {
    Amounts sums;
    for (const auto& row :
         ReadNumbers(db, u"SELECT Deal,Gaku FROM %1"_s.arg(table) + MonthCondition(nendo, getudo)))
        sums[static_cast<std::int32_t>(row[0])] += row[1];
    return sums;
}

std::map<std::int32_t, LedgerRow> LedgerOf(Database& db, int nendo, int getudo) {
    std::map<std::int32_t, LedgerRow> ledger;
    for (const auto& row :
         ReadNumbers(db, u"SELECT Deal,ZenkaiGaku,GGaku,UGaku,Gaku,NGaku,SyokiFlg FROM TtoD"_s +
                             MonthCondition(nendo, getudo)))
        ledger[static_cast<std::int32_t>(row[0])] = {row[1], row[2], row[3], row[4], row[5], row[6] != 0};
    return ledger;
}

/// What each customer's latest earlier row carries out.
Amounts BalancesBefore(Database& db, int nendo, int getudo) {
    struct Latest {
        std::int64_t month = 0;
        std::int64_t balance = 0;
    };
    std::map<std::int32_t, Latest> latest;
    for (const auto& row :
         ReadNumbers(db,
                     u"SELECT Deal,Nendo,Getudo,ZenkaiGaku,GGaku,UGaku,NGaku FROM TtoD WHERE Nendo<%1 "
                     "OR (Nendo=%1 AND Getudo<%2)"_s.arg(nendo)
                         .arg(getudo))) {
        Latest& kept = latest[static_cast<std::int32_t>(row[0])];
        const std::int64_t month = row[1] * 12 + row[2];
        if (month > kept.month) kept = {month, row[3] + row[4] + row[5] - row[6]};
    }
    Amounts balances;
    for (const auto& [deal, row] : latest)
        balances[deal] = row.balance;
    return balances;
}

const std::int64_t* Find(const Amounts& amounts, std::int32_t deal) {
    const auto found = amounts.find(deal);
    return found == amounts.end() ? nullptr : &found->second;
}

}  // namespace

std::vector<Difference> CheckLedgerMonth(Database& db, int nendo, int getudo) {
    const Amounts gas = SumsOf(db, u"Dgd"_s, nendo, getudo);
    const Amounts sales = SumsOf(db, u"Dud"_s, nendo, getudo);
    const Amounts payments = SumsOf(db, u"Dny"_s, nendo, getudo);
    const Amounts before = BalancesBefore(db, nendo, getudo);
    const std::map<std::int32_t, LedgerRow> ledger = LedgerOf(db, nendo, getudo);

    std::set<std::int32_t> known;
    for (const auto& row : ReadNumbers(db, u"SELECT Code FROM Deal"_s))
        known.insert(static_cast<std::int32_t>(row[0]));
    // Documents of a customer who is no longer known still have their row, only no balance is carried.
    std::set<std::int32_t> due = known;
    for (const Amounts* source : {&gas, &sales, &payments})
        for (const auto& [deal, amount] : *source)
            due.insert(deal);
    for (const auto& [deal, row] : ledger)
        due.insert(deal);

    std::vector<Difference> differences;
    for (const std::int32_t deal : due) {
        const auto note = [&](const QString& column, std::int64_t expected, std::int64_t found) {
            if (expected != found) differences.push_back({deal, nendo, getudo, column, expected, found});
        };
        const auto stored = ledger.find(deal);
        if (stored == ledger.end()) {
            note(u"行"_s, 10000, 0);
            continue;
        }
        const LedgerRow& row = stored->second;
        const std::int64_t* gasCharge = Find(gas, deal);
        const std::int64_t* sold = Find(sales, deal);
        const std::int64_t* paid = Find(payments, deal);
        const std::int64_t* carried = Find(before, deal);
        const std::int64_t expectedGas = gasCharge != nullptr ? *gasCharge : row.gGaku;
        const std::int64_t expectedSales = sold != nullptr ? *sold : 0;
        note(u"GGaku"_s, expectedGas, row.gGaku);
        note(u"UGaku"_s, expectedSales, row.uGaku);
        note(u"Gaku"_s, expectedGas + expectedSales, row.gaku);
        if (paid != nullptr) note(u"NGaku"_s, *paid, row.nGaku);
        if (!row.setByHand && known.contains(deal))
            note(u"ZenkaiGaku"_s, carried != nullptr ? *carried : 0, row.zenkaiGaku);
    }
    return differences;
}

}  // namespace akarix
