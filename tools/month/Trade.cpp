#include "month/Trade.h"

#include <algorithm>
#include <map>

#include "ledger/Rows.h"
#include "platform/runtime/DatePart.h"
#include "platform/runtime/DateSerial.h"
#include "sample/Dice.h"
#include "sample/SampleMasters.h"

namespace akarix::month {

namespace {

constexpr std::int64_t scaledYen = 10000;

struct Buyer {
    std::int32_t deal = 0;
    int closingDay = 0;
    bool paysCash = false;
    bool paysByDebit = false;
    bool paysByPost = false;
};

std::vector<Buyer> buyersOf(Database& db) {
    std::vector<Buyer> buyers;
    for (const auto& row : readNumbers(
             db, QStringLiteral("SELECT Code,Sime,SH,Bnk FROM Deal WHERE Code>0 AND Sime>0 ORDER BY Code"))) {
        buyers.push_back({static_cast<std::int32_t>(row[0]), static_cast<int>(row[1]), row[2] == 1,
                          row[3] != 0, row[3] == sample::postOffice});
    }
    return buyers;
}

/// How many of a thousand customers come up, so that no more than a number are to be expected.
int sampledPermille(std::size_t customers, int most, int usual) {
    const int room = customers == 0 ? usual : static_cast<int>(most * 1000 / static_cast<int>(customers));
    return std::clamp(room, 1, usual);
}

Date dayUpTo(const Buyer& buyer, int year, int month, sample::Dice& dice) {
    const int daysOfMonth = Day(DateSerial(year, month + 1, 0));
    return DateSerial(year, month, dice.between(1, std::min(buyer.closingDay, daysOfMonth)));
}

std::vector<SaleLine> basket(sample::Dice& dice) {
    std::vector<SaleLine> lines;
    const int goods = dice.percent(70) ? 1 : 2;
    for (int i = 0; i < goods; ++i) {
        const sample::Item& item = sample::itemAt(dice.below(sample::itemCount - 1));  // the last is the tax
        lines.push_back(goodsLine(item.code, item.price < 10000 ? dice.between(1, 3) : 1, item.price));
        lines.push_back(taxLine());
    }
    if (dice.percent(40)) {
        lines.push_back(textLine(QStringLiteral("取付調整料"), dice.between(4, 12) * 500));
        lines.push_back(taxLine());
    } else if (dice.percent(20)) {
        lines.push_back(textLine(QStringLiteral("出精値引"), -dice.between(1, 5) * 100));
    }
    return lines;
}

std::vector<PaymentPart> partsOf(const Buyer& buyer, std::int64_t owed, sample::Dice& dice) {
    enum Class { Cash = 1, Debit = 2, Transfer = 3, SetOff = 4, Discount = 5 };
    constexpr std::int64_t fee = 440;
    if (buyer.paysByDebit) return {{Debit, owed}};
    if (!buyer.paysCash && owed > fee && dice.percent(30)) {
        return {{Transfer, owed - fee}, {SetOff, fee, QStringLiteral("振込手数料")}};
    }
    const Class usual = buyer.paysCash ? Cash : Transfer;
    const std::int64_t odd = owed % 100;
    if (buyer.paysCash && owed > odd && odd != 0 && dice.percent(10)) {
        return {{usual, owed - odd}, {Discount, odd, QStringLiteral("端数値引")}};
    }
    const std::int64_t half = owed / 2000 * 1000;
    if (half > 0 && dice.percent(6)) return {{usual, half, QStringLiteral("内金")}};
    return {{usual, owed}};
}

std::map<std::int32_t, std::int64_t> owedAfter(Database& db, int year, int month) {
    std::map<std::int32_t, std::int64_t> owed;
    for (const auto& row : readNumbers(
             db, QStringLiteral("SELECT Deal,ZenkaiGaku,GGaku,UGaku,NGaku FROM TtoD WHERE Nendo=%1 AND "
                                "Getudo=%2")
                     .arg(year)
                     .arg(month))) {
        owed[static_cast<std::int32_t>(row[0])] = (row[1] + row[2] + row[3] - row[4]) / scaledYen;
    }
    return owed;
}

sample::Dice diceOf(int year, int month, std::uint64_t purpose) {
    return sample::Dice(purpose + static_cast<std::uint64_t>(year * 12 + month));
}

}  // namespace

SaleLine goodsLine(int item, int count, std::int64_t price) {
    return {.item = item, .count = count, .yen = price};
}

SaleLine textLine(const QString& text, std::int64_t yen) {
    return {.yen = yen, .text = text};
}

SaleLine taxLine() {
    return {.item = sample::taxItem};
}

bool isTax(const SaleLine& line) {
    return line.item == sample::taxItem;
}

std::int64_t totalOf(const Sale& sale) {
    std::int64_t total = 0;
    std::int64_t above = 0;
    for (const SaleLine& line : sale.lines) {
        const std::int64_t pieces = line.item != 0 ? line.count : 1;
        above = isTax(line) ? above * sample::taxPercent / 100 : pieces * line.yen;
        total += above;
    }
    return total;
}

std::int64_t totalOf(const Payment& payment) {
    std::int64_t total = 0;
    for (const PaymentPart& part : payment.parts)
        total += part.yen;
    return total;
}

std::vector<Sale> salesOf(Database& db, int year, int month) {
    constexpr int usualPermille = 120;
    sample::Dice dice = diceOf(year, month, 0x53414C45u);
    const std::vector<Buyer> buyers = buyersOf(db);
    const int chance = sampledPermille(buyers.size(), mostSales, usualPermille);
    std::vector<Sale> sales;
    for (const Buyer& buyer : buyers) {
        if (sales.size() == mostSales) break;
        if (!dice.permille(chance)) continue;
        const Date day = dayUpTo(buyer, year, month, dice);
        sales.push_back({buyer.deal, day, basket(dice)});
    }
    return sales;
}

std::vector<Payment> paymentsOf(Database& db, int year, int month) {
    constexpr int usualPermille = 1000;
    constexpr int late = 6;
    sample::Dice dice = diceOf(year, month, 0x5041494Eu);
    const int before = year * 12 + month - 2;
    const auto owed = owedAfter(db, before / 12, before % 12 + 1);
    const std::vector<Buyer> buyers = buyersOf(db);
    const int chance = sampledPermille(buyers.size(), mostPayments, usualPermille);
    std::vector<Payment> payments;
    for (const Buyer& buyer : buyers) {
        const auto found = owed.find(buyer.deal);
        if (payments.size() == mostPayments) break;
        if (buyer.paysByPost) continue;  // comes with the disk
        if (found == owed.end() || found->second <= 0) continue;
        if (!dice.permille(chance) || dice.percent(late)) continue;
        constexpr int debitDay = 5;
        const Date day = buyer.paysByDebit ? DateSerial(year, month, std::min(debitDay, buyer.closingDay))
                                           : dayUpTo(buyer, year, month, dice);
        payments.push_back({buyer.deal, day, partsOf(buyer, found->second, dice)});
    }
    return payments;
}

}  // namespace akarix::month
