#include "ledger/ReadingCheck.h"

#include <algorithm>
#include <deque>

#include "ledger/MeterUse.h"
#include "ledger/Rows.h"

namespace akarix {

namespace {

constexpr std::int64_t unit = 10000;
constexpr int fewestToCompare = 3;
// A house's winter is some three times its summer, and the year before has both.
constexpr std::int64_t timesAbove = 3;
constexpr std::int64_t partBelow = 5;
constexpr std::int64_t leastGap = 10 * unit;  // small uses jump by their nature

struct PastUse {
    int month = 0;  ///< counted from year 0
    std::int64_t use = 0;
};

int countedMonth(std::int64_t nendo, std::int64_t getudo) {
    return static_cast<int>(nendo * 12 + getudo - 1);
}

/// The doubts of one reading, given the customer's year before it.
void judge(DoubtfulReading reading, std::int64_t meters, const std::deque<PastUse>& year,
           std::vector<DoubtfulReading>& doubtful) {
    const auto doubt = [&](bool isSo, Doubt why, std::int64_t usual) {
        if (!isSo) return;
        reading.doubt = why;
        reading.usual = usual;
        doubtful.push_back(reading);
    };
    const std::int64_t use = reading.use;
    doubt(use < 0, Doubt::Negative, 0);
    doubt(use > 0 && reading.charge == 0, Doubt::NoCharge, 0);
    doubt(use != meters, Doubt::NotMeters, meters);
    if (year.size() < fewestToCompare || use <= 0) return;
    const auto [low, high] = std::minmax_element(
        year.begin(), year.end(), [](const PastUse& a, const PastUse& b) { return a.use < b.use; });
    doubt(use > high->use * timesAbove && use - high->use > leastGap, Doubt::FarAbove, high->use);
    doubt(use * partBelow < low->use && low->use - use > leastGap, Doubt::FarBelow, low->use);
}

}  // namespace

std::vector<DoubtfulReading> CheckReadings(Database& db, int fromMonth) {
    std::vector<DoubtfulReading> doubtful;
    std::deque<PastUse> year;
    std::int64_t customer = -1;
    for (const auto& row : readNumbers(
             db, QStringLiteral("SELECT Deal,Nendo,Getudo,ZenkaiMeter,KoukanMeter,KoukanGoMeter,KonkaiMeter,"
                                "Suu,Gaku FROM Dgd WHERE Nendo*100+Getudo>=%1 ORDER BY Deal,Nendo,Getudo")
                     .arg(fromMonth - 100))) {
        const bool neverRead = row[6] == 0 && row[7] == 0 && row[8] == 0;
        if (neverRead) continue;
        if (row[0] != customer) year.clear();
        customer = row[0];
        const int month = countedMonth(row[1], row[2]);
        while (!year.empty() && year.front().month < month - 12)
            year.pop_front();
        if (row[1] * 100 + row[2] >= fromMonth) {
            judge({static_cast<std::int32_t>(row[0]), static_cast<int>(row[1]), static_cast<int>(row[2]),
                   row[3], row[6], row[7], row[8]},
                  roundShown(meterUse(row[3], row[4], row[5], row[6]), unit / 10), year, doubtful);
        }
        if (row[7] > 0) year.push_back({month, row[7]});
    }
    return doubtful;
}

int LastYearOfReadings(Database& db) {
    const auto last = readNumbers(
        db, QStringLiteral(
                "SELECT TOP 1 Nendo,Getudo FROM Dgd WHERE KonkaiMeter<>0 ORDER BY Nendo*100+Getudo DESC"));
    if (last.empty()) return 0;
    const int first = countedMonth(last[0][0], last[0][1]) - 11;
    return first / 12 * 100 + first % 12 + 1;
}

}  // namespace akarix
