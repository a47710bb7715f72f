#pragma once

#include <cstdint>
#include <map>
#include <optional>

namespace akarix {
class Database;
}

namespace akarix::month {

/// One line of the meter reader's notes, in tenths of a cubic metre.
struct MeterNote {
    int exchangedAt = 0;  ///< last reading of a meter taken away; 0 when none was
    int startsAt = 0;     ///< first reading of the new one
    int now = 0;
    friend bool operator==(const MeterNote&, const MeterNote&) = default;
};

/// What the meter reader brings home: readings after each customer's habit and the season, the same ones for
/// the same store and month.
class MeterBook {
 public:
    MeterBook(Database& db, int year, int month);

    /// A meter that was set up this month.
    void addMeter(std::int32_t deal);
    /// Nothing for a customer without a meter. \param before the meter's previous reading, in tenths
    std::optional<MeterNote> note(std::int32_t deal, int before) const;

 private:
    int month_;
    std::map<std::int32_t, int> usualTenths_;  ///< of an average month
};

}  // namespace akarix::month
