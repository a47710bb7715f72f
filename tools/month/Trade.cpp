#include "month/Trade.h"

#include <algorithm>
#include <map>
#include <utility>

#include "ledger/Rows.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Currency.h"
#include "platform/runtime/Literals.h"
#include "sample/Dice.h"
#include "sample/SampleMasters.h"

namespace akarix::month {

namespace {

struct Buyer {
    std::int32_t deal = 0;
    int closingDay = 0;
    bool paysCash = false;
    bool paysByDebit = false;
    bool paysByPost = false;
    bool getsInvoice = false;
};

std::vector<Buyer> BuyersOf(Database& db) {
    std::vector<Buyer> buyers;
    for (const auto& row : ReadNumbers(
             db, u"SELECT Code,Sime,SH,Bnk,NoSeikyu FROM Deal WHERE Code>0 AND Sime>0 ORDER BY Code"_s)) {
        buyers.push_back({static_cast<std::int32_t>(row[0]), static_cast<int>(row[1]), row[2] == 1,
                          row[3] != 0, row[3] == sample::kPostOffice, row[4] == 0});
    }
    return buyers;
}

/// How many of a thousand customers come up, so that no more than a number are to be expected.
int SampledPermille(std::size_t customers, int most, int usual) {
    const int room = customers == 0 ? usual : static_cast<int>(most * 1000 / static_cast<int>(customers));
    return std::clamp(room, 1, usual);
}

int DaysOf(int year, int month) {
    return Day(DateSerial(year, month + 1, 0));
}

Date DayUpTo(const Buyer& buyer, int year, int month, sample::Dice& dice) {
    return DateSerial(year, month, dice.between(1, std::min(buyer.closingDay, DaysOf(year, month))));
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

const sample::Item& ItemOf(int code) {
    int index = 0;
    while (sample::ItemAt(index).code != code)
        ++index;
    return sample::ItemAt(index);
}

SaleLine Taken(const sample::Item& item, int tenths) {
    return GoodsLine(item.code, tenths, item.price);
}

/// Two slips, together with the gas more than the eight lines of a sheet.
std::vector<Sale> KitchenFor(const Buyer& buyer, Date day) {
    Sale goods{buyer.deal, day, {}};
    for (const int item : {10, 12, 31}) {
        goods.lines.push_back(Taken(ItemOf(item), 10));
        goods.lines.push_back(TaxLine());
    }
    return {goods, {buyer.deal, day, {Taken(ItemOf(sample::kHoseItem), 25), TaxLine()}}};
}

const Buyer* KitchenBuyer(const std::vector<Buyer>& buyers) {
    const auto found =
        std::find_if(buyers.begin(), buyers.end(), [](const Buyer& buyer) { return buyer.getsInvoice; });
    return found == buyers.end() ? nullptr : &*found;
}

std::vector<SaleLine> Basket(sample::Dice& dice) {
    std::vector<SaleLine> lines;
    const int goods = dice.percent(70) ? 1 : 2;
    for (int i = 0; i < goods; ++i) {
        const sample::Item& item = sample::ItemAt(dice.below(sample::kItemCount - 1));  // the last is the tax
        lines.push_back(Taken(item, sample::TakenTenths(item, dice)));
        lines.push_back(TaxLine());
    }
    if (dice.percent(40)) {
        lines.push_back(TextLine(u"取付調整料"_s, dice.between(4, 12) * 500));
        lines.push_back(TaxLine());
    } else if (dice.percent(20)) {
        lines.push_back(TextLine(u"出精値引"_s, -dice.between(1, 5) * 100));
    }
    return lines;
}

enum Class { Cash = 1, Debit = 2, Transfer = 3, SetOff = 4, Discount = 5 };

/// Several months' bills at once, so that the dealer owes the customer.
std::vector<PaymentPart> AheadFor(const Buyer& buyer, std::int64_t owed) {
    constexpr std::int64_t months = 6;
    return {{buyer.paysCash ? Cash : Transfer, owed * months, u"前払"_s}};
}

std::vector<PaymentPart> PartsOf(const Buyer& buyer, std::int64_t owed, sample::Dice& dice) {
    constexpr std::int64_t fee = 440;
    if (buyer.paysByDebit) return {{Debit, owed}};
    if (!buyer.paysCash && owed > fee && dice.percent(30))
        return {{Transfer, owed - fee}, {SetOff, fee, u"振込手数料"_s}};
    const Class usual = buyer.paysCash ? Cash : Transfer;
    const std::int64_t odd = owed % 100;
    if (buyer.paysCash && owed > odd && odd != 0 && dice.percent(10))
        return {{usual, owed - odd}, {Discount, odd, u"端数値引"_s}};
    const std::int64_t half = owed / 2000 * 1000;
    if (half > 0 && dice.percent(6)) return {{usual, half, u"内金"_s}};
    return {{usual, owed}};
}

std::map<std::int32_t, std::int64_t> OwedAfter(Database& db, int year, int month) {
    std::map<std::int32_t, std::int64_t> owed;
    for (const auto& row :
         ReadNumbers(db,
                     u"SELECT Deal,ZenkaiGaku,GGaku,UGaku,NGaku FROM TtoD WHERE Nendo=%1 AND "
                     "Getudo=%2"_s.arg(year)
                         .arg(month)))
        owed[static_cast<std::int32_t>(row[0])] = (row[1] + row[2] + row[3] - row[4]) / Currency::kScale;
    return owed;
}

/// Paid in the month before already, after the closing day.
void TakeOffPaid(Database& db, int year, int month, std::map<std::int32_t, std::int64_t>& owed) {
    for (const auto& row : ReadNumbers(db,
                                       u"SELECT Deal,Gaku FROM Dny WHERE Nendo=%1 AND Getudo=%2 AND "
                                       "Hizuke<#%1/%2/1#"_s.arg(year)
                                           .arg(month)))
        owed[static_cast<std::int32_t>(row[0])] -= row[1] / Currency::kScale;
}

sample::Dice DiceOf(int year, int month, std::uint64_t purpose) {
    return sample::Dice(purpose + static_cast<std::uint64_t>(year * 12 + month));
}

}  // namespace

SaleLine GoodsLine(int item, int tenths, std::int64_t price) {
    return {.item = item, .tenths = tenths, .yen = price};
}

SaleLine TextLine(const QString& text, std::int64_t yen) {
    return {.yen = yen, .text = text};
}

SaleLine TaxLine() {
    return {.item = sample::kTaxItem};
}

bool IsTax(const SaleLine& line) {
    return line.item == sample::kTaxItem;
}

std::int64_t TotalOf(const Sale& sale) {
    std::int64_t total = 0;
    std::int64_t above = 0;
    for (const SaleLine& line : sale.lines) {
        const std::int64_t tenths = line.item != 0 ? line.tenths : 10;
        above = IsTax(line) ? above * sample::kTaxPercent / 100 : tenths * line.yen / 10;  // cut towards 0
        total += above;
    }
    return total;
}

std::int64_t TotalOf(const Payment& payment) {
    std::int64_t total = 0;
    for (const PaymentPart& part : payment.parts)
        total += part.yen;
    return total;
}

std::vector<Sale> SalesOf(Database& db, int year, int month) {
    constexpr int usualPermille = 120;
    sample::Dice dice = DiceOf(year, month, 0x53414C45u);
    const std::vector<Buyer> buyers = BuyersOf(db);
    const int chance = SampledPermille(buyers.size(), kMostSales, usualPermille);
    const Buyer* const kitchen = KitchenBuyer(buyers);
    std::vector<Sale> sales;
    for (const Buyer& buyer : buyers) {
        if (sales.size() >= kMostSales) break;
        if (&buyer == kitchen) {
            for (const Sale& sale : KitchenFor(buyer, DayUpTo(buyer, year, month, dice)))
                sales.push_back(sale);
        } else if (dice.permille(chance)) {
            const Date day = DayUpTo(buyer, year, month, dice);
            sales.push_back({buyer.deal, day, Basket(dice)});
        }
    }
    return sales;
}

Sale LateSaleOf(Database& db, int year, int month) {
    const std::vector<Buyer> buyers = BuyersOf(db);
    const Buyer* const kitchen = KitchenBuyer(buyers);
    if (kitchen == nullptr) return {};
    return {kitchen->deal,
            DateSerial(year, month, std::min(kitchen->closingDay, 28)),
            {Taken(ItemOf(sample::kHoseItem), -15), TaxLine()}};
}

std::vector<Payment> PaymentsOf(Database& db, int year, int month) {
    constexpr int usualPermille = 1000;
    constexpr int late = 6;
    sample::Dice dice = DiceOf(year, month, 0x5041494Eu);
    const int before = year * 12 + month - 2;
    auto owed = OwedAfter(db, before / 12, before % 12 + 1);
    TakeOffPaid(db, year, month, owed);
    const int end = DaysOf(year, month);
    constexpr std::int64_t ordinaryBill = 20000;
    Seldom paysAhead(2);
    Seldom paysLate(8);
    const std::vector<Buyer> buyers = BuyersOf(db);
    const int chance = SampledPermille(buyers.size(), kMostPayments, usualPermille);
    std::vector<Payment> payments;
    for (const Buyer& buyer : buyers) {
        const auto found = owed.find(buyer.deal);
        if (payments.size() == kMostPayments) break;
        if (buyer.paysByPost) continue;  // comes with the disk
        if (found == owed.end() || found->second <= 0) continue;
        if (!dice.permille(chance) || dice.percent(late)) continue;
        if (buyer.paysByDebit) {
            constexpr int debitDay = 5;
            const Date day = DateSerial(year, month, std::min(debitDay, buyer.closingDay));
            payments.push_back({buyer.deal, day, PartsOf(buyer, found->second, dice)});
        } else if (paysAhead.happens(found->second < ordinaryBill, dice)) {
            const Date day = DayUpTo(buyer, year, month, dice);
            payments.push_back({buyer.deal, day, AheadFor(buyer, found->second)});
        } else {
            const bool isLate = paysLate.happens(buyer.closingDay < end, dice);
            const Date day = isLate ? DateSerial(year, month, dice.between(buyer.closingDay + 1, end))
                                    : DayUpTo(buyer, year, month, dice);
            payments.push_back({buyer.deal, day, PartsOf(buyer, found->second, dice), isLate});
        }
    }
    return payments;
}

}  // namespace akarix::month
