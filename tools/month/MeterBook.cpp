#include "month/MeterBook.h"

#include <algorithm>

#include "ledger/Rows.h"
#include "platform/runtime/Currency.h"
#include "platform/runtime/Literals.h"
#include "sample/Season.h"

namespace akarix::month {

namespace {

constexpr int kMeterEnd = 99999;
constexpr int kNewHousehold = 80;  ///< tenths in its first month
int SeasonOf(std::int64_t month) {
    return sample::kSeason[month - 1];
}

}  // namespace

MeterBook::MeterBook(Database& db, int year, int month) : month_(month) {
    struct Sum {
        std::int64_t tenths = 0;
        int months = 0;
    };
    std::map<std::int32_t, Sum> sums;
    for (const auto& row : ReadNumbers(db,
                                       u"SELECT Deal,Getudo,Suu FROM Dgd "
                                       "WHERE Nendo*100+Getudo<%1"_s.arg(year * 100 + month))) {
        if (row[2] < 0) continue;  // misread
        Sum& sum = sums[static_cast<std::int32_t>(row[0])];
        sum.tenths += row[2] / (Currency::kScale / 10) * 100 / SeasonOf(row[1]);
        ++sum.months;
    }
    for (const auto& [deal, sum] : sums)
        usualTenths_[deal] = static_cast<int>(sum.tenths / sum.months);
}

void MeterBook::addMeter(std::int32_t deal) {
    usualTenths_[deal] = kNewHousehold * 100 / SeasonOf(month_);
}

std::optional<MeterNote> MeterBook::note(std::int32_t deal, int before) const {
    const auto found = usualTenths_.find(deal);
    if (found == usualTenths_.end()) return std::nullopt;
    const int mood = 85 + (deal * 37 + month_ * 11) % 31;  // no month is like another
    const int use = found->second * SeasonOf(month_) / 100 * mood / 100;
    // One customer in so many, so that a small dealer's month has each of these too.
    constexpr int every = 97;
    const int turn = deal % every;
    constexpr int readTooHigh = 12;  // in the month before
    if (turn == 7 && before > readTooHigh) return MeterNote{.now = before - readTooHigh};
    constexpr int notedTooLow = 1000;  // the old meter's end, by a wrong digit
    const bool keyedWrong = turn == 13 && before > notedTooLow;
    const bool exchanged = before + use > kMeterEnd || (before > 0 && turn == 11) || keyedWrong;
    if (!exchanged) return MeterNote{.now = before + use};
    const int onTheOld = std::min(use / 2, kMeterEnd - before);
    constexpr int testedAtTheWorks = 3;
    return MeterNote{.exchangedAt = before + onTheOld - (keyedWrong ? notedTooLow : 0),
                     .startsAt = testedAtTheWorks,
                     .now = testedAtTheWorks + use - onTheOld};
}

}  // namespace akarix::month
