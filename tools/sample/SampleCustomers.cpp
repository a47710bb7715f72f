#include "sample/SampleCustomers.h"

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
const Kind kinds[] = {
    {120, Premises::Apartment, ApartmentTariff, 25, 90},
    {50, Premises::Restaurant, BusinessTariff, 250, 1400},
    {10, Premises::Hospital, BusinessTariff, 150, 500},
    {15, Premises::Hall, PublicTariff, 5, 60},
    {5, Premises::School, PublicTariff, 200, 900},
    {25, Premises::Other, BulkTariff, 100, 600},
    {1000, Premises::House, HouseTariff, 45, 220},
};

const Kind& pickKind(Dice& dice) {
    int roll = dice.below(1000);
    for (const Kind& kind : kinds) {
        if (roll < kind.permille) return kind;
        roll -= kind.permille;
    }
    return kinds[std::size(kinds) - 1];
}

int pickClosingDay(Dice& dice) {
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
Account pickAccount(std::int32_t code, Premises premises, Dice& dice) {
    Account account;
    if (!dice.percent(58)) return account;
    account.kind = premises == Premises::House || premises == Premises::Apartment ? 1 : dice.between(1, 2);
    if (dice.percent(34)) {
        account.bank = postOffice;
        // The office's five digits begin with 1; the passbook number has eight.
        account.branch = 10000 + 10 * dice.between(101, 999);
        account.number = QStringLiteral("%1").arg(10000001 + code * 10, 8, 10, QLatin1Char('0'));
        return account;
    }
    const CollectingBank& bank = bankAt(dice.below(bankCount));
    account.bank = bank.code;
    account.branch = dice.pick(bank.branches);
    account.number = QStringLiteral("%1").arg(1200000 + code, 7, 10, QLatin1Char('0'));
    return account;
}

QString phone(std::int32_t code, int shift) {
    return QStringLiteral("0999-%1-%2")
        .arg(20 + shift + code / 10000, 2, 10, QLatin1Char('0'))
        .arg(code % 10000, 4, 10, QLatin1Char('0'));
}

QString street(Dice& dice) {
    return QStringLiteral("%1-%2").arg(dice.between(1, 28)).arg(dice.between(1, 40));
}

Variant number(int value) {
    return std::int32_t{value};
}

Variant flag(bool set) {
    return std::int16_t{set};
}

}  // namespace

std::vector<Customer> fillCustomers(int count, Dice& dice) {
    RowWriter table(QStringLiteral("Deal"));
    std::vector<Customer> customers;
    customers.reserve(static_cast<std::size_t>(count));
    for (std::int32_t code = 1; code <= count; ++code) {
        const Kind& kind = pickKind(dice);
        Customer customer;
        customer.code = code;
        customer.route = static_cast<int>(std::int64_t{code - 1} * routeCount / count);
        customer.tariff = kind.tariff;
        customer.closingDay = pickClosingDay(dice);
        customer.usualTenths = dice.between(kind.leastTenths, kind.mostTenths);
        customer.meterTenths = dice.between(0, 30000);
        customer.takesGas = !dice.percent(2);
        if (dice.percent(40)) customer.openingYen = dice.between(20, 140) * 100;

        const ReadName name = businessName(dice, kind.premises);
        const Town& town = townOf(customer.route, dice.below(townsOfRoute));
        const Account account = pickAccount(code, kind.premises, dice);
        customer.bank = account.bank;
        customer.paymentClass = account.bank != 0 ? 2 : (dice.percent(65) ? 1 : 3);
        const bool fixedDebit = account.bank != 0 && dice.percent(3);
        const bool business = kind.premises != Premises::House && kind.premises != Premises::Apartment;
        const QString room = kind.premises == Premises::Apartment
                                 ? QStringLiteral("%1号室").arg(dice.between(101, 306))
                                 : QString();

        table.add({{QStringLiteral("Code"), code},
                   {QStringLiteral("Rte"), number(customer.route + 1)},
                   {QStringLiteral("Kana"), name.kana},
                   {QStringLiteral("Namae"), name.name},
                   {QStringLiteral("Ryaku"), name.name.left(20)},
                   {QStringLiteral("Yubin"), QString::fromUtf16(town.zip)},
                   {QStringLiteral("Addr1"), townAddress(town) + street(dice)},
                   {QStringLiteral("Addr2"), room},
                   {QStringLiteral("TEL"), phone(code, 0)},
                   {QStringLiteral("Fax"), business ? phone(code, 40) : QString()},
                   {QStringLiteral("Sime"), number(customer.closingDay)},
                   {QStringLiteral("SH"), number(customer.paymentClass == 1 ? 1 : 2)},
                   {QStringLiteral("Map"), number(dice.between(1, 60))},
                   {QStringLiteral("Sisetu"), number(static_cast<int>(kind.premises))},
                   {QStringLiteral("Simekiri"), number(customer.closingDay)},
                   {QStringLiteral("Haisou"), number(code * 10)},
                   {QStringLiteral("TankaPtn"), number(customer.tariff)},
                   {QStringLiteral("Bnk"), number(account.bank)},
                   {QStringLiteral("Stn"), number(account.branch)},
                   {QStringLiteral("Kind"), number(account.kind)},
                   {QStringLiteral("Koza"), account.number},
                   {QStringLiteral("ACU"), flag(dice.percent(4))},
                   {QStringLiteral("Keihou"), flag(dice.percent(28))},
                   {QStringLiteral("NoSeikyu"), flag(dice.percent(2))},
                   {QStringLiteral("DiscGaku"), Currency(fixedDebit ? dice.between(3, 12) * 1000 : 0)}});
        customers.push_back(customer);
    }
    return customers;
}

}  // namespace akarix::sample
