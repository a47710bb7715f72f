#pragma once

#include <cstdint>
#include <vector>

#include "values/BillingMonth.h"

namespace akarix {

class Database;

/// What makes a reading worth a look by a person. None of it is a fault by itself.
enum class Doubt {
    Negative,   ///< the meter ran backwards, or the reading was forgotten
    NoCharge,   ///< use, and nothing charged: no tariff band holds it
    NotMeters,  ///< the use that stands there is not what the meters say
    FarAbove,   ///< far above the customer's own year before
    FarBelow,
    NotLast,   ///< the previous reading is not what the meter showed when it was last read
    NeverRead  ///< billed, and nobody has read the meter
};

/// Readings and use in 1/10,000 m³, the charge in 1/10,000 yen.
struct DoubtfulReading {
    std::int32_t deal = 0;
    BillingMonth month;
    std::int64_t zenkaiMeter = 0;
    std::int64_t konkaiMeter = 0;
    std::int64_t use = 0;
    std::int64_t charge = 0;
    Doubt doubt = Doubt::Negative;
    /// The year's highest or lowest use, what the meters say, what the meter last showed, or how many months
    /// in a row nobody has read it.
    std::int64_t usual = 0;
};

/// Looks through the readings from a month on, each held against those of its customer
/// in the twelve months before, its previous reading against the last one however long ago. A use of nothing
/// is not told of: houses stand empty; nor is a customer without gas who was never read. By customer and
/// month.
std::vector<DoubtfulReading> CheckReadings(Database& db, BillingMonth from);

/// Eleven months before the last one that has readings, so that a year is looked at; no month when there is
/// no reading.
BillingMonth LastYearOfReadings(Database& db);

}  // namespace akarix
