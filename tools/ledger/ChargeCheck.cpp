#include "ledger/ChargeCheck.h"

#include <map>

#include "ledger/MeterUse.h"
#include "ledger/Rows.h"

namespace akarix {

namespace {

constexpr std::int64_t unit = 10000;

struct Band {
    std::int64_t from = 0;
    std::int64_t to = 0;
    std::int64_t basic = 0;
    std::int64_t price = 0;
};

std::int64_t floorDivide(__int128 value, std::int64_t divisor) {
    const __int128 quotient = value / divisor;
    return static_cast<std::int64_t>(value % divisor < 0 ? quotient - 1 : quotient);
}

/// Two amounts multiplied, kept to four decimals, a half going to the even neighbour.
std::int64_t product(std::int64_t a, std::int64_t b) {
    const __int128 exact = static_cast<__int128>(a) * b;
    const std::int64_t low = floorDivide(exact, unit);
    const auto twice = static_cast<std::int64_t>((exact - static_cast<__int128>(low) * unit) * 2);
    return twice > unit || (twice == unit && low % 2 != 0) ? low + 1 : low;
}

std::int64_t chargeFor(const std::vector<Band>& bands, std::int64_t use) {
    for (const Band& band : bands) {
        if (band.from * unit <= use && use <= band.to * unit) {
            const std::int64_t metered = product(use - band.from * unit, band.price);
            return band.basic + floorDivide(metered, unit) * unit;
        }
    }
    return 0;
}

}  // namespace

std::vector<Difference> CheckCharges(Database& db, int nendo, int getudo) {
    std::map<std::int64_t, std::vector<Band>> tariff;
    for (const auto& row :
         readNumbers(db, QStringLiteral("SELECT Ptn,St,Ed,Kihon,Tanka FROM GasKeisan ORDER BY Ptn,St,Ed"))) {
        tariff[row[0]].push_back({row[1], row[2], row[3], row[4]});
    }
    std::map<std::int64_t, std::int64_t> patterns;
    for (const auto& row : readNumbers(db, QStringLiteral("SELECT Code,TankaPtn FROM Deal"))) {
        patterns[row[0]] = row[1];
    }

    std::vector<Difference> differences;
    for (const auto& row : readNumbers(
             db, QStringLiteral("SELECT Deal,ZenkaiMeter,KoukanMeter,KoukanGoMeter,KonkaiMeter,Suu,Gaku "
                                "FROM Dgd WHERE Nendo=%1 AND Getudo=%2 ORDER BY Deal")
                     .arg(nendo)
                     .arg(getudo))) {
        const bool neverRead = row[4] == 0 && row[5] == 0 && row[6] == 0;
        if (neverRead) continue;
        const std::int64_t use = meterUse(row[1], row[2], row[3], row[4]);
        const auto pattern = patterns.find(row[0]);
        const std::int64_t charge = pattern == patterns.end() ? 0 : chargeFor(tariff[pattern->second], use);
        const auto note = [&](const QString& column, std::int64_t expected, std::int64_t found) {
            if (expected == found) return;
            differences.push_back(
                {static_cast<std::int32_t>(row[0]), nendo, getudo, column, expected, found});
        };
        note(QStringLiteral("Suu"), roundShown(use, unit / 10), row[5]);
        note(QStringLiteral("Gaku"), roundShown(charge, unit), row[6]);
    }
    return differences;
}

}  // namespace akarix
