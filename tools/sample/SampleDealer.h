#pragma once

#include <QString>
#include <functional>

namespace akarix::sample {

struct Wish {
    int customers = 300;
    int months = 14;
    /// The last month that is made and billed.
    int untilYear = 0;
    int untilMonth = 0;
};

constexpr int kMostCustomers = 32000;
constexpr int kMostMonths = 120;

/// Called before each step with what is being made.
using Progress = std::function<void(const QString& text)>;

/// Fills the open store (gDb), which must be as delivered, with a believable dealer: masters, customers and
/// month after month of readings, slips and payments, each month billed by the product's own run. The same
/// wish gives the same rows.
void FillSampleDealer(const Wish& wish, const Progress& progress);

}  // namespace akarix::sample
