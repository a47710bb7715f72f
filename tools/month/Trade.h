#pragma once

#include <QString>
#include <cstdint>
#include <vector>

#include "platform/runtime/Date.h"

namespace akarix {
class Database;
}

namespace akarix::month {

/// A line of a sale: goods, a text of its own, or the tax on the line above.
struct SaleLine {
    int item = 0;          ///< 0 for a text
    int tenths = 0;        ///< how much of it; below 0 when it is given back
    std::int64_t yen = 0;  ///< of one piece, or of the whole text
    QString text{};
};

struct Sale {
    std::int32_t deal = 0;
    Date day;
    std::vector<SaleLine> lines;
};

SaleLine GoodsLine(int item, int tenths, std::int64_t price);
SaleLine TextLine(const QString& text, std::int64_t yen);
SaleLine TaxLine();
bool IsTax(const SaleLine& line);
/// Worked out in whole numbers, with no routine of the screen.
std::int64_t TotalOf(const Sale& sale);

struct PaymentPart {
    int paymentClass = 0;  ///< NyukinKubun.Code
    std::int64_t yen = 0;
    QString memo{};
};

struct Payment {
    std::int32_t deal = 0;
    Date day;
    std::vector<PaymentPart> parts;
    bool nextMonth = false;  ///< made after the closing day
};

std::int64_t TotalOf(const Payment& payment);

// What a month brings in beside the readings, the same for the same store and month. Each sale is dated so
// that it counts for that month. Typing takes its time, so a large dealer's customers are sampled.

constexpr int kMostSales = 60;
constexpr int kMostPayments = 300;

/// Among them a new kitchen, whose invoice has more lines than a sheet.
std::vector<Sale> SalesOf(Database& db, int year, int month);
/// Comes to the desk when the month is billed already: a part of the kitchen is given back.
Sale LateSaleOf(Database& db, int year, int month);
/// Most customers pay what the month before left, some a part of it or far more, a few nothing, and some only
/// after their closing day. Those of the post office are booked by its disk.
std::vector<Payment> PaymentsOf(Database& db, int year, int month);

}  // namespace akarix::month
