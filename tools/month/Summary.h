#pragma once

#include <QString>
#include <cstdint>

#include "month/DebitFile.h"
#include "month/HardCases.h"
#include "month/StepTimes.h"

namespace akarix {
class Database;
}

namespace akarix::month {

/// The figures of a month as the store holds them. Amounts are in 1/10,000.
struct Figures {
    std::int64_t customers = 0;
    std::int64_t readings = 0;  ///< rows with a charge or a reading
    std::int64_t usage = 0;
    std::int64_t gas = 0;
    std::int64_t slips = 0;  ///< sales slips, the run's own among them
    std::int64_t sales = 0;
    std::int64_t billed = 0;
    std::int64_t before = 0;  ///< balance carried into the month
    std::int64_t payments = 0;
    std::int64_t paid = 0;
    std::int64_t after = 0;  ///< balance carried out of it
    std::int64_t invoicePages = 0;
    DebitFigures debit{};  ///< in yen
    HardCases hardCases{};
};

Figures ReadFigures(Database& db, int year, int month);

/// Plain text in two columns.
QString SummaryText(int year, int month, const Figures& figures, const StepTimes& times);

}  // namespace akarix::month
