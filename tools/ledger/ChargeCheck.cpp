#include "ledger/ChargeCheck.h"

#include <map>

#include "ledger/MeterUse.h"
#include "ledger/Rows.h"
#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

constexpr std::int64_t kUnit = 10000;

struct Band {
    std::int64_t from = 0;
    std::int64_t to = 0;
    std::int64_t basic = 0;
    std::int64_t price = 0;
};

std::int64_t FloorDivide(__int128 value, std::int64_t divisor) {
    const __int128 quotient = value / divisor;
    return static_cast<std::int64_t>(value % divisor < 0 ? quotient - 1 : quotient);
}

/// Two amounts multiplied, kept to four decimals, a half going to the even neighbour.
std::int64_t Product(std::int64_t a, std::int64_t b) {
    const __int128 exact = static_cast<__int128>(a) * b;
    const std::int64_t low = FloorDivide(exact, kUnit);
    const auto twice = static_cast<std::int64_t>((exact - static_cast<__int128>(low) * kUnit) * 2);
    return twice > kUnit || (twice == kUnit && low % 2 != 0) ? low + 1 : low;
}

std::int64_t ChargeFor(const std::vector<Band>& bands, std::int64_t use) {
    for (const Band& band : bands) {
        if (band.from * kUnit <= use && use <= band.to * kUnit) {
            const std::int64_t metered = Product(use - band.from * kUnit, band.price);
            return band.basic + FloorDivide(metered, kUnit) * kUnit;
        }
    }
    return 0;
}

}  // namespace

std::vector<Difference> CheckCharges(Database& db, BillingMonth month) {
    std::map<std::int64_t, std::vector<Band>> tariff;
    for (const auto& row :
         ReadNumbers(db, u"SELECT Ptn,St,Ed,Kihon,Tanka FROM GasKeisan ORDER BY Ptn,St,Ed"_s))
        tariff[row[0]].push_back({row[1], row[2], row[3], row[4]});
    std::map<std::int64_t, std::int64_t> patterns;
    for (const auto& row : ReadNumbers(db, u"SELECT Code,TankaPtn FROM Deal"_s))
        patterns[row[0]] = row[1];

    std::vector<Difference> differences;
    for (const auto& row : ReadNumbers(
             db, u"SELECT Deal,ZenkaiMeter,KoukanMeter,KoukanGoMeter,KonkaiMeter,Suu,Gaku FROM Dgd"_s +
                     WhereMonth(month) + u" ORDER BY Deal"_s)) {
        const bool neverRead = row[4] == 0 && row[5] == 0 && row[6] == 0;
        if (neverRead) continue;
        const std::int64_t use = MeterUse(row[1], row[2], row[3], row[4]);
        const auto pattern = patterns.find(row[0]);
        const std::int64_t charge = pattern == patterns.end() ? 0 : ChargeFor(tariff[pattern->second], use);
        const auto note = [&](const QString& column, std::int64_t expected, std::int64_t found) {
            if (expected == found) return;
            differences.push_back({static_cast<std::int32_t>(row[0]), month, column, expected, found});
        };
        note(u"Suu"_s, RoundShown(use, kUnit / 10), row[5]);
        note(u"Gaku"_s, RoundShown(charge, kUnit), row[6]);
    }
    return differences;
}

}  // namespace akarix
