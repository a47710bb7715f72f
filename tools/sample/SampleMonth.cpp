#include "sample/SampleMonth.h"

#include <algorithm>
#include <utility>

#include "billing/Sub.h"
#include "billing/Tto.h"
#include "entry/GasUsage.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Literals.h"
#include "sample/SampleMasters.h"
#include "sample/Season.h"
#include "store/FieldValue.h"
#include "store/Lookup.h"
#include "store/dbAccess.h"
#include "values/NumVal.h"

namespace akarix::sample {

namespace {

constexpr int kReadingDays[] = {20, 21, 22, 23, 24, 25};

Currency Tenths(int value) {
    return Currency::FromScaled(std::int64_t{value} * (Currency::kScale / 10));
}

int DaysIn(int year, int month) {
    return Day(DateSerial(year, month + 1, 0));
}

}  // namespace

MonthMaker::MonthMaker(std::vector<Customer>& customers, Dice& dice)
    : customers_(customers),
      dice_(dice),
      readings_(u"Dgd"_s,
                u"Nendo,Getudo,Deal,ZenkaiMeter,KoukanMeter,KoukanGoMeter,KonkaiMeter,Suu,Gaku,Hi"_s),
      slips_(u"Dud"_s, u"Dno,Eda,Hizuke,Deal,HinCode,HinNamae,Suu,Tanka,Gaku,Nendo,Getudo,CreateAuto"_s),
      payments_(u"Dny"_s, u"Dno,Eda,Hizuke,Deal,Kubun,Gaku,Naiyo,Nendo,Getudo"_s) {}

void MonthMaker::openBalances(int year, int month) {
    RowWriter ledger(u"TtoD"_s, u"Deal,Nendo,Getudo,ZenkaiGaku,SyokiFlg"_s);
    for (const Customer& customer : customers_) {
        if (customer.openingYen == 0) continue;
        ledger.add({customer.code, year, month, Currency(customer.openingYen), std::int16_t{1}});
        owed_[customer.code] = Currency(customer.openingYen);
    }
}

void MonthMaker::make(int year, int month) {
    writeReadings(year, month);
    // The run takes slip numbers of its own.
    nextSlip_ = NextDudNo();
    writeSlips(year, month);
    writePayments(year, month);
    BuildMonthLedger({year, month}, DateSerial(year, month, DaysIn(year, month)));
    CarryForwardMonth({year, month});
    readBalances(year, month);
}

void MonthMaker::writeReadings(int year, int month) {
    for (Customer& customer : customers_)
        if (customer.takesGas) writeReading(customer, year, month);
}

void MonthMaker::writeReading(Customer& customer, int year, int month) {
    constexpr int meterEnd = 99999;
    int use = customer.usualTenths * kSeason[month - 1] * dice_.between(80, 120) / 10000;
    if (dice_.permille(12)) use = 0;  // nobody at home
    const int before = customer.meterTenths;
    int exchangedAt = 0;
    int after = 0;
    // A meter near its end is exchanged, and now and then one whose time is over.
    if (before + use > meterEnd || (before > 0 && dice_.permille(4))) {
        exchangedAt = before + std::min(use / 2, meterEnd - before);
        after = dice_.percent(30) ? dice_.between(1, 9) : 0;
        customer.meterTenths = after + use - (exchangedAt - before);
        constexpr int wrongDigit = 1000;  // in the old meter's end, now and then
        if (exchangedAt > wrongDigit && exchanges_++ % 4 == 0) exchangedAt -= wrongDigit;
    } else if (dice_.permille(4)) {
        customer.meterTenths = std::max(0, before - dice_.between(1, 30));  // the last reading was too high
    } else {
        customer.meterTenths = before + use;
    }
    const Currency usage =
        CalcGasUsage(Tenths(before), Tenths(exchangedAt), Tenths(after), Tenths(customer.meterTenths));
    readings_.add({year, month, customer.code, Tenths(before), Tenths(exchangedAt), Tenths(after),
                   Tenths(customer.meterTenths), usage, charge(customer, usage),
                   kReadingDays[customer.route]});
}

/// The charge as the reading sheet shows and stores it, asked once for each use of a tariff.
Currency MonthMaker::charge(const Customer& customer, Currency usage) {
    const auto [place, isNew] = charges_.try_emplace({customer.tariff, usage.Scaled()});
    if (isNew) place->second = ToCurrency(Format(CalcGasCharge(customer.code, usage), u"###,##0"_s));
    return place->second;
}

void MonthMaker::writeSlips(int year, int month) {
    for (const Customer& customer : customers_) {
        const int chance = customer.takesGas ? 11 : 60;
        if (!dice_.percent(chance)) continue;
        writeSlip(customer, DateSerial(year, month, dice_.between(1, DaysIn(year, month))));
    }
}

void MonthMaker::writeSlip(const Customer& customer, Date day) {
    const BillingMonth billed = DateToGetudo(customer.code, day);
    const std::int32_t dno = nextSlip_++;
    int eda = 0;
    const auto add = [&](int code, const QString& name, Currency amount, Currency count, Currency price) {
        slips_.add({dno, ++eda, day, customer.code, code, name, count, price, amount, billed.nendo,
                    billed.getudo, std::int16_t{0}});
    };
    const int goods = dice_.percent(75) ? 1 : dice_.between(2, 3);
    for (int i = 0; i < goods; ++i) {
        const Item& item = ItemAt(dice_.below(kItemCount - 1));  // the last is the tax line
        const int returned = dice_.percent(3) ? -1 : 1;
        const Currency count = Tenths(returned * TakenTenths(item, dice_));
        const Currency amount = Fix(count * Currency(item.price));
        add(item.code, QString::fromUtf16(item.name), amount, count, Currency(item.price));
        const Currency rate = Currency(kTaxPercent) / Currency(100);
        add(kTaxItem, u"消費税"_s, Fix(amount * rate), Currency(), Currency());
    }
}

void MonthMaker::writePayments(int year, int month) {
    for (const Customer& customer : customers_) {
        const auto found = owed_.find(customer.code);
        if (found == owed_.end() || found->second <= Currency(0)) continue;
        const Currency owed = found->second;
        const int roll = dice_.below(100);
        const bool byDebit = customer.bank != 0;
        if (roll < (byDebit ? 3 : 8)) continue;  // late: pays with the next month
        if (!byDebit && roll < 14 && owed > Currency(2000)) {
            const Currency thousands = Fix(owed / Currency(2000));
            writePayment(customer, year, month, thousands * Currency(1000));
        } else if (!byDebit && roll >= 98 && owed < Currency(20000)) {
            writePayment(customer, year, month, owed * Currency(5));  // for months to come
        } else {
            writePayment(customer, year, month, owed);
        }
    }
}

void MonthMaker::writePayment(const Customer& customer, int year, int month, Currency amount) {
    if (amount.IsZero()) return;
    const Date date = paymentDay(customer, year, month);
    const BillingMonth billed = DateToGetudo(customer.code, date);
    if (billed.getudo != month) paidAhead_[customer.code] += amount;
    const std::int32_t dno = nextPayment_++;
    int eda = 0;
    const auto add = [&](int paymentClass, Currency part, const QString& memo) {
        payments_.add(
            {dno, ++eda, date, customer.code, paymentClass, part, memo, billed.nendo, billed.getudo});
    };
    const Currency fee = Currency(440);
    if (customer.paymentClass == 3 && amount > fee && dice_.percent(10)) {
        add(3, amount - fee, QString());
        add(4, fee, u"振込手数料"_s);
    } else {
        add(customer.paymentClass, amount, QString());
    }
}

/// Most pay up to their closing day, so that it counts for this month; a few after it.
Date MonthMaker::paymentDay(const Customer& customer, int year, int month) {
    if (customer.bank != 0) return DateSerial(year, month, 5);
    const int end = DaysIn(year, month);
    const int closing = std::min(customer.closingDay, end);
    const bool isLate = closing < end && dice_.percent(8);
    return DateSerial(year, month, isLate ? dice_.between(closing + 1, end) : dice_.between(1, closing));
}

/// What each customer owes at the end of the billed month, and has not yet paid after its closing day.
void MonthMaker::readBalances(int year, int month) {
    owed_.clear();
    Recordset ledger = gDb->OpenRecordset(
        u"SELECT Deal,ZenkaiGaku,Gaku,NGaku FROM TtoD WHERE Nendo=%1 AND Getudo=%2"_s.arg(year).arg(month));
    for (; !ledger.Eof(); ledger.MoveNext()) {
        owed_[LongOf(ledger[u"Deal"_s])] =
            MoneyOf(ledger[u"ZenkaiGaku"_s]) + MoneyOf(ledger[u"Gaku"_s]) - MoneyOf(ledger[u"NGaku"_s]);
    }
    ledger.Close();
    for (const auto& [deal, amount] : std::exchange(paidAhead_, {}))
        owed_[deal] -= amount;
}

}  // namespace akarix::sample
