#include "month/Trade.h"

#include <algorithm>
#include <map>
#include <utility>

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
    bool getsInvoice = false;
};

std::vector<Buyer> buyersOf(Database& db) {
    std::vector<Buyer> buyers;
    for (const auto& row : readNumbers(
             db, QStringLiteral(
                     "SELECT Code,Sime,SH,Bnk,NoSeikyu FROM Deal WHERE Code>0 AND Sime>0 ORDER BY Code"))) {
        buyers.push_back({static_cast<std::int32_t>(row[0]), static_cast<int>(row[1]), row[2] == 1,
                          row[3] != 0, row[3] == sample::postOffice, row[4] == 0});
    }
    return buyers;
}

/// How many of a thousand customers come up, so that no more than a number are to be expected.
int sampledPermille(std::size_t customers, int most, int usual) {
    const int room = customers == 0 ? usual : static_cast<int>(most * 1000 / static_cast<int>(customers));
    return std::clamp(room, 1, usual);
}

int daysOf(int year, int month) {
    return Day(DateSerial(year, month + 1, 0));
}

Date dayUpTo(const Buyer& buyer, int year, int month, sample::Dice& dice) {
    return DateSerial(year, month, dice.between(1, std::min(buyer.closingDay, daysOf(year, month))));
}

/// What seldom happens: to the first customer it can happen to, so that a small dealer's month has it too,
/// and to a few of the others.
class Seldom {
 public:
    explicit Seldom(int percent) : percent_(percent) {}
    bool happens(bool can, sample::Dice& dice) {
        if (!can) return false;
        return !std::exchange(met_, true) || dice.percent(percent_);
    }

 private:
    int percent_;
    bool met_ = false;
};

const sample::Item& itemOf(int code) {
    int index = 0;
    while (sample::itemAt(index).code != code)
        ++index;
    return sample::itemAt(index);
}

SaleLine taken(const sample::Item& item, int tenths) {
    return goodsLine(item.code, tenths, item.price);
}

/// Two slips, together with the gas more than the eight lines of a sheet.
std::vector<Sale> kitchenFor(const Buyer& buyer, Date day) {
    Sale goods{buyer.deal, day, {}};
    for (const int item : {10, 12, 31}) {
        goods.lines.push_back(taken(itemOf(item), 10));
        goods.lines.push_back(taxLine());
    }
    return {goods, {buyer.deal, day, {taken(itemOf(sample::hoseItem), 25), taxLine()}}};
}

const Buyer* kitchenBuyer(const std::vector<Buyer>& buyers) {
    const auto found =
        std::find_if(buyers.begin(), buyers.end(), [](const Buyer& buyer) { return buyer.getsInvoice; });
    return found == buyers.end() ? nullptr : &*found;
}

std::vector<SaleLine> basket(sample::Dice& dice) {
    std::vector<SaleLine> lines;
    const int goods = dice.percent(70) ? 1 : 2;
    for (int i = 0; i < goods; ++i) {
        const sample::Item& item = sample::itemAt(dice.below(sample::itemCount - 1));  // the last is the tax
        lines.push_back(taken(item, sample::takenTenths(item, dice)));
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

enum Class { Cash = 1, Debit = 2, Transfer = 3, SetOff = 4, Discount = 5 };

/// Several months' bills at once, so that the dealer owes the customer.
std::vector<PaymentPart> aheadFor(const Buyer& buyer, std::int64_t owed) {
    constexpr std::int64_t months = 6;
    return {{buyer.paysCash ? Cash : Transfer, owed * months, QStringLiteral("前払")}};
}

std::vector<PaymentPart> partsOf(const Buyer& buyer, std::int64_t owed, sample::Dice& dice) {
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

/// Paid in the month before already, after the closing day.
void takeOffPaid(Database& db, int year, int month, std::map<std::int32_t, std::int64_t>& owed) {
    for (const auto& row :
         readNumbers(db, QStringLiteral("SELECT Deal,Gaku FROM Dny WHERE Nendo=%1 AND Getudo=%2 AND "
                                        "Hizuke<#%1/%2/1#")
                             .arg(year)
                             .arg(month))) {
        owed[static_cast<std::int32_t>(row[0])] -= row[1] / scaledYen;
    }
}

sample::Dice diceOf(int year, int month, std::uint64_t purpose) {
    return sample::Dice(purpose + static_cast<std::uint64_t>(year * 12 + month));
}

}  // namespace

SaleLine goodsLine(int item, int tenths, std::int64_t price) {
    return {.item = item, .tenths = tenths, .yen = price};
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
        const std::int64_t tenths = line.item != 0 ? line.tenths : 10;
        above = isTax(line) ? above * sample::taxPercent / 100 : tenths * line.yen / 10;  // cut towards 0
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
    const Buyer* const kitchen = kitchenBuyer(buyers);
    std::vector<Sale> sales;
    for (const Buyer& buyer : buyers) {
        if (sales.size() >= mostSales) break;
        if (&buyer == kitchen) {
            for (const Sale& sale : kitchenFor(buyer, dayUpTo(buyer, year, month, dice)))
                sales.push_back(sale);
        } else if (dice.permille(chance)) {
            const Date day = dayUpTo(buyer, year, month, dice);
            sales.push_back({buyer.deal, day, basket(dice)});
        }
    }
    return sales;
}

Sale lateSaleOf(Database& db, int year, int month) {
    const std::vector<Buyer> buyers = buyersOf(db);
    const Buyer* const kitchen = kitchenBuyer(buyers);
    if (kitchen == nullptr) return {};
    return {kitchen->deal,
            DateSerial(year, month, std::min(kitchen->closingDay, 28)),
            {taken(itemOf(sample::hoseItem), -15), taxLine()}};
}

std::vector<Payment> paymentsOf(Database& db, int year, int month) {
    constexpr int usualPermille = 1000;
    constexpr int late = 6;
    sample::Dice dice = diceOf(year, month, 0x5041494Eu);
    const int before = year * 12 + month - 2;
    auto owed = owedAfter(db, before / 12, before % 12 + 1);
    takeOffPaid(db, year, month, owed);
    const int end = daysOf(year, month);
    constexpr std::int64_t ordinaryBill = 20000;
    Seldom paysAhead(2);
    Seldom paysLate(8);
    const std::vector<Buyer> buyers = buyersOf(db);
    const int chance = sampledPermille(buyers.size(), mostPayments, usualPermille);
    std::vector<Payment> payments;
    for (const Buyer& buyer : buyers) {
        const auto found = owed.find(buyer.deal);
        if (payments.size() == mostPayments) break;
        if (buyer.paysByPost) continue;  // comes with the disk
        if (found == owed.end() || found->second <= 0) continue;
        if (!dice.permille(chance) || dice.percent(late)) continue;
        if (buyer.paysByDebit) {
            constexpr int debitDay = 5;
            const Date day = DateSerial(year, month, std::min(debitDay, buyer.closingDay));
            payments.push_back({buyer.deal, day, partsOf(buyer, found->second, dice)});
        } else if (paysAhead.happens(found->second < ordinaryBill, dice)) {
            const Date day = dayUpTo(buyer, year, month, dice);
            payments.push_back({buyer.deal, day, aheadFor(buyer, found->second)});
        } else {
            const bool isLate = paysLate.happens(buyer.closingDay < end, dice);
            const Date day = isLate ? DateSerial(year, month, dice.between(buyer.closingDay + 1, end))
                                    : dayUpTo(buyer, year, month, dice);
            payments.push_back({buyer.deal, day, partsOf(buyer, found->second, dice), isLate});
        }
    }
    return payments;
}

}  // namespace akarix::month
