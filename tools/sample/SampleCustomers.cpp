#include "sample/SampleCustomers.h"

#include "platform/runtime/Literals.h"
#include "sample/Names.h"
#include "sample/RowWriter.h"
#include "sample/SampleMasters.h"

namespace akarix::sample {

namespace {

struct Kind {
    int permille;
    Premises premises;
    Tariff tariff;
    int leastTenths;
    int mostTenths;
};

// Houses are what is left of a thousand.
const Kind kKinds[] = {
    {120, Premises::Apartment, ApartmentTariff, 25, 90},
    {50, Premises::Restaurant, BusinessTariff, 250, 1400},
    {10, Premises::Hospital, BusinessTariff, 150, 500},
    {15, Premises::Hall, PublicTariff, 5, 60},
    {5, Premises::School, PublicTariff, 200, 900},
    {25, Premises::Other, BulkTariff, 100, 600},
    {1000, Premises::House, HouseTariff, 45, 220},
};

const Kind& PickKind(Dice& dice) {
    int roll = dice.below(1000);
    for (const Kind& kind : kKinds) {
        if (roll < kind.permille) return kind;
        roll -= kind.permille;
    }
    return kKinds[std::size(kKinds) - 1];
}

int PickClosingDay(Dice& dice) {
    const int roll = dice.below(100);
    if (roll < 62) return 31;
    if (roll < 85) return 20;
    return roll < 95 ? 25 : 10;
}

struct Account {
    int bank = 0;
    int branch = 0;
    int kind = 0;
    QString number;
};

/// More than half pay by debit, a third of them through the post office. Numbers are taken from the
/// customer's own code, so that no two customers share an account by accident.
Account PickAccount(std::int32_t code, Premises premises, Dice& dice) {
    Account account;
    if (!dice.percent(58)) return account;
    account.kind = premises == Premises::House || premises == Premises::Apartment ? 1 : dice.between(1, 2);
    if (dice.percent(34)) {
        account.bank = kPostOffice;
        // The office's five digits begin with 1; the passbook number has eight.
        account.branch = 10000 + 10 * dice.between(101, 999);
        account.number = u"%1"_s.arg(10000001 + code * 10, 8, 10, QLatin1Char('0'));
        return account;
    }
    const CollectingBank& bank = BankAt(dice.below(kBankCount));
    account.bank = bank.code;
    account.branch = dice.pick(bank.branches);
    account.number = u"%1"_s.arg(1200000 + code, 7, 10, QLatin1Char('0'));
    return account;
}

QString Phone(std::int32_t code, int shift) {
    return u"0999-%1-%2"_s.arg(20 + shift + code / 10000, 2, 10, QLatin1Char('0'))
        .arg(code % 10000, 4, 10, QLatin1Char('0'));
}

QString Street(Dice& dice) {
    return u"%1-%2"_s.arg(dice.between(1, 28)).arg(dice.between(1, 40));
}

Variant Flag(bool set) {
    return std::int16_t{set};
}

}  // namespace

std::vector<Customer> FillCustomers(int count, Dice& dice) {
    RowWriter table(u"Deal"_s,
                    u"Code,Rte,Kana,Namae,Ryaku,Yubin,Addr1,Addr2,TEL,Fax,Sime,SH,Map,Sisetu,Simekiri,Haisou,"
                    "TankaPtn,Bnk,Stn,Kind,Koza,ACU,Keihou,NoSeikyu,DiscGaku"_s);
    std::vector<Customer> customers;
    customers.reserve(static_cast<std::size_t>(count));
    for (std::int32_t code = 1; code <= count; ++code) {
        const Kind& kind = PickKind(dice);
        Customer customer;
        customer.code = code;
        customer.route = static_cast<int>(std::int64_t{code - 1} * kRouteCount / count);
        customer.tariff = kind.tariff;
        customer.closingDay = PickClosingDay(dice);
        customer.usualTenths = dice.between(kind.leastTenths, kind.mostTenths);
        customer.meterTenths = dice.between(0, 30000);
        customer.takesGas = !dice.percent(2);
        if (dice.percent(40)) customer.openingYen = dice.between(20, 140) * 100;

        const ReadName name = BusinessName(dice, kind.premises);
        const Town& town = TownOf(customer.route, dice.below(kTownsOfRoute));
        const Account account = PickAccount(code, kind.premises, dice);
        customer.bank = account.bank;
        customer.paymentClass = account.bank != 0 ? 2 : (dice.percent(65) ? 1 : 3);
        const bool fixedDebit = account.bank != 0 && dice.percent(3);
        const bool business = kind.premises != Premises::House && kind.premises != Premises::Apartment;
        const QString room =
            kind.premises == Premises::Apartment ? u"%1号室"_s.arg(dice.between(101, 306)) : QString();

        const QString street = TownAddress(town) + Street(dice);
        const int mapSheet = dice.between(1, 60);
        const Variant leasesAcu = Flag(dice.percent(4));
        const Variant leasesAlarm = Flag(dice.percent(28));
        const Variant noInvoice = Flag(dice.percent(2));
        const Currency debit(fixedDebit ? dice.between(3, 12) * 1000 : 0);
        table.add({code,
                   customer.route + 1,
                   name.kana,
                   name.name,
                   name.name.left(20),
                   town.zip,
                   street,
                   room,
                   Phone(code, 0),
                   business ? Phone(code, 40) : QString(),
                   customer.closingDay,
                   customer.paymentClass == 1 ? 1 : 2,
                   mapSheet,
                   static_cast<int>(kind.premises),
                   customer.closingDay,
                   code * 10,
                   customer.tariff,
                   account.bank,
                   account.branch,
                   account.kind,
                   account.number,
                   leasesAcu,
                   leasesAlarm,
                   noInvoice,
                   debit});
        customers.push_back(customer);
    }
    return customers;
}

}  // namespace akarix::sample
