#include "month/DebitCheck.h"

#include <algorithm>
#include <map>

#include "ledger/Rows.h"
#include "platform/runtime/Currency.h"
#include "platform/runtime/Literals.h"
#include "sample/SampleMasters.h"

namespace akarix::month {

namespace {

using Yen = std::map<std::int32_t, std::int64_t>;  ///< by customer

Yen ReadYen(Database& db, const QString& sql) {
    Yen yen;
    for (const auto& row : ReadNumbers(db, sql))
        yen[static_cast<std::int32_t>(row[0])] += row[1] / Currency::kScale;
    return yen;
}

QStringList CompareYen(const QString& place, const Yen& wanted, Yen stored) {
    QStringList differences;
    for (const auto& [deal, yen] : wanted) {
        const auto found = stored.extract(deal);
        const std::int64_t there = found.empty() ? 0 : found.mapped();
        if (there != yen) {
            differences
                << u"得意先 %1: 口座振替 %2 円が %3 では %4 円です。"_s.arg(deal).arg(yen).arg(place).arg(
                       there);
        }
    }
    for (const auto& [deal, yen] : stored) {
        if (yen == 0) continue;
        differences << u"得意先 %1: %2 の %3 円は振替結果にありません。"_s.arg(deal).arg(place).arg(yen);
    }
    return differences;
}

}  // namespace

DebitClaims ClaimsAfter(Database& db, int bank, int year, int month) {
    DebitClaims claims;
    for (const auto& row :
         ReadNumbers(db,
                     u"SELECT TtoD.Deal,TtoD.ZenkaiGaku,TtoD.Gaku,TtoD.NGaku,Deal.DiscGaku "
                     "FROM TtoD INNER JOIN Deal ON TtoD.Deal=Deal.Code WHERE Deal.Bnk=%1 AND "
                     "TtoD.Nendo=%2 AND TtoD.Getudo=%3 ORDER BY Deal.Rte,Deal.Haisou,TtoD.Deal"_s.arg(bank)
                         .arg(year)
                         .arg(month))) {
        const std::int64_t balance = row[1] + row[2] - row[3];
        const std::int64_t fixed = row[4];
        if (balance <= 0) continue;
        const std::int64_t asked = fixed != 0 && fixed <= balance ? fixed : balance;
        claims.push_back({static_cast<std::int32_t>(row[0]), asked / Currency::kScale});
    }
    return claims;
}

QStringList CompareDebits(Database& db, int year, int month, const DebitClaims& claims) {
    Yen wanted;
    for (const DebitClaim& claim : claims)
        wanted[claim.deal] += claim.debited ? claim.yen : 0;
    const QString ofMonth =
        u" INNER JOIN Deal ON %1.Deal=Deal.Code WHERE Deal.Bnk=%2 AND Nendo=%3 AND Getudo=%4"_s;
    const auto stored = [&](const QString& table, const QString& column, const QString& more) {
        return ReadYen(db, u"SELECT %1.Deal,%1.%2 FROM %1"_s.arg(table, column) +
                               ofMonth.arg(table).arg(sample::kPostOffice).arg(year).arg(month) + more);
    };
    const QString onDebitDay = u" AND Kubun=2 AND Hizuke=#%1/%2/%3#"_s.arg(year).arg(month).arg(kDebitDay);
    QStringList differences = CompareYen(u"入金"_s, wanted, stored(u"Dny"_s, u"Gaku"_s, onDebitDay));
    differences += CompareYen(u"売掛"_s, wanted, stored(u"TtoD"_s, u"NGaku"_s, QString()));
    const auto logged = ReadNumbers(
        db, u"SELECT COUNT(*) FROM FDLog WHERE Bnk=%1 AND Nendo=%2 AND Getudo=%3"_s.arg(sample::kPostOffice)
                .arg(year)
                .arg(month))[0][0];
    if (logged != (claims.empty() ? 0 : 1))
        differences << u"読み込んだディスクの記録が %1 件あります。"_s.arg(logged);
    return differences;
}

}  // namespace akarix::month
