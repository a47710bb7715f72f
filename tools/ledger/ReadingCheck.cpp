#include "ledger/ReadingCheck.h"

#include <algorithm>
#include <deque>
#include <optional>
#include <set>

#include "ledger/MeterUse.h"
#include "ledger/Rows.h"
#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

constexpr std::int64_t kUnit = 10000;
constexpr int kFewestToCompare = 3;
// A house's winter is some three times its summer, and the year before has both.
constexpr std::int64_t kTimesAbove = 3;
constexpr std::int64_t kPartBelow = 5;
constexpr std::int64_t kLeastGap = 10 * kUnit;  // small uses jump by their nature

struct PastUse {
    BillingMonth month;
    std::int64_t use = 0;
};

BillingMonth MonthOf(std::int64_t nendo, std::int64_t getudo) {
    return {static_cast<int>(nendo), static_cast<int>(getudo)};
}

struct Reading {
    std::int32_t deal = 0;
    BillingMonth month;
    std::int64_t before = 0;
    std::int64_t oldEnd = 0;  ///< of a meter that was exchanged
    std::int64_t newStart = 0;
    std::int64_t now = 0;
    std::int64_t use = 0;
    std::int64_t charge = 0;

    bool neverRead() const { return now == 0 && use == 0 && charge == 0; }
    /// What the meter shows at the end; a 0 only of one that has just been exchanged.
    bool showsMeter() const { return now != 0 || (oldEnd != 0 && !neverRead()); }
};

/// Walks the readings, each customer's from the oldest to the newest.
class Walk {
 public:
    Walk(Database& db, BillingMonth from) : db_(db), from_(from) {
        for (const auto& row : ReadNumbers(db, u"SELECT Code FROM Deal WHERE TankaPtn<>0"_s))
            takesGas_.insert(static_cast<std::int32_t>(row[0]));
        for (const auto& row : ReadNumbers(db, u"SELECT Nen,Tuki FROM Syukei"_s))
            billed_.insert(MonthOf(row[0], row[1]));
    }

    void add(const Reading& reading) {
        if (reading.deal != deal_) beginCustomer(reading.deal);
        const BillingMonth yearAgo = reading.month.plus(-12);
        while (!year_.empty() && year_.front().month < yearAgo)
            year_.pop_front();
        if (reading.month >= from_) judge(reading);
        wasRead_ = reading.showsMeter();
        if (wasRead_) last_ = reading.now;
        if (reading.use > 0) year_.push_back({reading.month, reading.use});
    }

    std::vector<DoubtfulReading> doubtful;

 private:
    void beginCustomer(std::int32_t deal) {
        deal_ = deal;
        year_.clear();
        last_.reset();
        isOlderSought_ = false;
        wasRead_ = false;
        unread_ = 0;
    }

    void doubt(const Reading& reading, bool isSo, Doubt why, std::int64_t usual) {
        if (!isSo) return;
        doubtful.push_back({reading.deal, reading.month, reading.before, reading.now, reading.use,
                            reading.charge, why, usual});
    }

    void judge(const Reading& reading) {
        judgePrevious(reading);
        if (reading.neverRead()) return judgeUnread(reading);
        unread_ = 0;
        const std::int64_t use = reading.use;
        const std::int64_t meters =
            RoundShown(MeterUse(reading.before, reading.oldEnd, reading.newStart, reading.now), kUnit / 10);
        doubt(reading, use < 0, Doubt::Negative, 0);
        doubt(reading, use > 0 && reading.charge == 0, Doubt::NoCharge, 0);
        doubt(reading, use != meters, Doubt::NotMeters, meters);
        if (year_.size() < kFewestToCompare || use <= 0) return;
        const auto [low, high] = std::minmax_element(
            year_.begin(), year_.end(), [](const PastUse& a, const PastUse& b) { return a.use < b.use; });
        doubt(reading, use > high->use * kTimesAbove && use - high->use > kLeastGap, Doubt::FarAbove,
              high->use);
        doubt(reading, use * kPartBelow < low->use && low->use - use > kLeastGap, Doubt::FarBelow, low->use);
    }

    /// Behind a month that nobody read the next one starts at 0. In a row that is itself not read that
    /// matters to nobody yet, and is told by the month before it.
    void judgePrevious(const Reading& reading) {
        if (reading.neverRead() && !wasRead_) return;
        if (!last_) seekOlder(reading);
        doubt(reading, last_ && *last_ != reading.before, Doubt::NotLast, last_.value_or(0));
    }

    /// A gap of several months is told once, where it begins.
    void judgeUnread(const Reading& reading) {
        const bool isDue = reading.before != 0 || takesGas_.contains(reading.deal);
        if (!isDue || !billed_.contains(reading.month)) return;
        if (unread_ == 0) {
            doubt(reading, true, Doubt::NeverRead, 0);
            unread_ = doubtful.size();
        }
        doubtful[unread_ - 1].usual += kUnit;
    }

    void seekOlder(const Reading& reading) {
        if (isOlderSought_) return;
        isOlderSought_ = true;
        const auto found =
            ReadNumbers(db_,
                        u"SELECT TOP 1 KonkaiMeter FROM Dgd WHERE Deal=%1 AND Nendo*100+Getudo<%2 AND "
                        "KonkaiMeter<>0 ORDER BY Nendo*100+Getudo DESC"_s.arg(reading.deal)
                            .arg(reading.month.key()));
        if (!found.empty()) last_ = found[0][0];
    }

    Database& db_;
    BillingMonth from_;
    std::set<std::int32_t> takesGas_;
    std::set<BillingMonth> billed_;

    std::int32_t deal_ = -1;
    std::deque<PastUse> year_;
    std::optional<std::int64_t> last_;  ///< what the customer's meter last showed
    bool isOlderSought_ = false;
    bool wasRead_ = false;    ///< in the row before
    std::size_t unread_ = 0;  ///< place of the doubt that counts the months not read, from 1; 0: none
};

}  // namespace

std::vector<DoubtfulReading> CheckReadings(Database& db, BillingMonth from) {
    Walk walk(db, from);
    for (const auto& row :
         ReadNumbers(db,
                     u"SELECT Deal,Nendo,Getudo,ZenkaiMeter,KoukanMeter,KoukanGoMeter,KonkaiMeter,"
                     "Suu,Gaku FROM Dgd WHERE Nendo*100+Getudo>=%1 ORDER BY Deal,Nendo,Getudo"_s.arg(
                         from.key() - 100))) {
        walk.add({static_cast<std::int32_t>(row[0]), MonthOf(row[1], row[2]), row[3], row[4], row[5], row[6],
                  row[7], row[8]});
    }
    return std::move(walk.doubtful);
}

BillingMonth LastYearOfReadings(Database& db) {
    const auto last = ReadNumbers(
        db, u"SELECT TOP 1 Nendo,Getudo FROM Dgd WHERE KonkaiMeter<>0 ORDER BY Nendo*100+Getudo DESC"_s);
    return last.empty() ? BillingMonth() : MonthOf(last[0][0], last[0][1]).plus(-11);
}

}  // namespace akarix
