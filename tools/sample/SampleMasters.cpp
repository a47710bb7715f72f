#include "sample/SampleMasters.h"

#include "sample/Names.h"
#include "sample/RowWriter.h"

namespace akarix::sample {

namespace {

struct Route {
    const char16_t* kana;
    const char16_t* name;
    int readingDay;
};

const Route routes[routeCount] = {
    {u"ﾎﾝﾁﾖｳ", u"本町地区", 20}, {u"ｴｷﾏｴ", u"駅前地区", 21},   {u"ｶﾜﾆｼ", u"川西地区", 22},
    {u"ﾔﾏﾃ", u"山手地区", 23},   {u"ﾊﾏﾄﾞｵﾘ", u"浜通地区", 24}, {u"ｼﾝﾃﾞﾝ", u"新田地区", 25},
};

/// Bounds of the bands, shared by neighbours so that a use with a fraction is always inside one.
constexpr int bandCount = 5;
constexpr int bounds[bandCount + 1] = {0, 5, 10, 20, 30, 999};

struct TariffRow {
    Tariff pattern;
    int basicTenths;             ///< of a yen
    int tenthsOfYen[bandCount];  ///< price of a cubic metre in each band
};

const TariffRow tariffs[] = {
    {HouseTariff, 17000, {5800, 5600, 5350, 5100, 4900}},
    {ApartmentTariff, 19000, {5950, 5750, 5500, 5250, 5050}},
    {BusinessTariff, 22000, {5200, 4950, 4655, 4405, 4105}},
    {BulkTariff, 30005, {4805, 4555, 4205, 3905, 3605}},
    {PublicTariff, 20005, {5405, 5155, 4905, 4655, 4405}},
};

const Item items[itemCount] = {
    {1, u"ﾎﾞﾝﾍﾞ20", u"LPガス 20kgボンベ", 8800},
    {2, u"ﾎﾞﾝﾍﾞ50", u"LPガス 50kgボンベ", 19800},
    {3, u"ﾎﾞﾝﾍﾞ8", u"LPガス 8kgボンベ", 4200},
    {10, u"ｶﾞｽｺﾝﾛ", u"ガスコンロ 2口", 29800},
    {11, u"ｷﾕｳﾄｳｷ", u"ガス給湯器 16号", 138000},
    {12, u"ｶﾞｽﾌｱﾝﾋｰﾀ", u"ガスファンヒーター", 42800},
    {hoseItem, u"ｶﾞｽﾎｰｽ", u"ガスホース 9.5mm 1m", 583},
    {21, u"ﾁﾖｳｾｲｷ", u"調整器", 6800},
    {22, u"ｹｲﾎｳｷ", u"ガス警報器", 7480},
    {30, u"ｼﾕﾂﾁﾖｳ", u"出張修理代", 4500},
    {31, u"ﾊｲｶﾝｺｳｼﾞ", u"配管工事", 18000},
    {taxItem, u"ｼﾖｳﾋｾﾞｲ", u"消費税", 0},
};

const CollectingBank banks[bankCount] = {
    {152, {1, 12, 25}},
    {543, {101, 110, 118}},
    {1405, {3, 7, 21}},
};

struct ConsignorRow {
    int code;
    const char16_t* itakuCode;
    const char16_t* fileName;
    const char16_t* bank;
    int branch;
    const char16_t* branchName;
    const char16_t* account;
};

const char16_t* const dealerKana = u"ﾐﾄﾞﾘｶﾜﾌﾟﾛﾊﾟﾝ";

const ConsignorRow consignors[] = {
    {152, u"0000152301", u"FURI0152.TXT", u"ﾐﾄﾞﾘｶﾜｷﾞﾝｺｳ", 1, u"ﾎﾝﾃﾝ", u"1023344"},
    {543, u"0000543877", u"FURI0543.TXT", u"ﾋｶﾞｼｳﾐｷﾞﾝｺｳ", 101, u"ｴｷﾏｴ", u"2210987"},
    {1405, u"0001405112", u"FURI1405.TXT", u"ｼﾛﾔﾏｼﾝｷﾝ", 3, u"ｼﾛﾔﾏ", u"0345671"},
};

QString text(const char16_t* value) {
    return QString::fromUtf16(value);
}

Variant number(int value) {
    return std::int32_t{value};
}

void fillRoutes() {
    RowWriter table(QStringLiteral("Rte"));
    for (int i = 0; i < routeCount; ++i) {
        const Route& route = routes[i];
        table.add({{QStringLiteral("Code"), number(i + 1)},
                   {QStringLiteral("Kana"), text(route.kana)},
                   {QStringLiteral("Namae"), text(route.name)},
                   {QStringLiteral("Kensin"), number(route.readingDay)}});
    }
}

void fillTariffs() {
    RowWriter table(QStringLiteral("GasKeisan"));
    for (const TariffRow& tariff : tariffs) {
        int basicTenths = tariff.basicTenths;
        for (int band = 0; band < bandCount; ++band) {
            table.add({{QStringLiteral("Ptn"), number(tariff.pattern)},
                       {QStringLiteral("St"), number(bounds[band])},
                       {QStringLiteral("Ed"), number(bounds[band + 1])},
                       {QStringLiteral("Kihon"), Currency(basicTenths) / Currency(10)},
                       {QStringLiteral("Tanka"), Currency(tariff.tenthsOfYen[band]) / Currency(10)}});
            // A band's basic charge holds what the bands below it cost.
            basicTenths += (bounds[band + 1] - bounds[band]) * tariff.tenthsOfYen[band] / 10 * 10;
        }
    }
}

void fillCapacityPrices() {
    RowWriter table(QStringLiteral("Tnk"));
    const auto add = [&table](int pattern, int kind, Currency capacity, int price) {
        table.add({{QStringLiteral("Ptn"), number(pattern)},
                   {QStringLiteral("Capa"), capacity},
                   {QStringLiteral("Tanka"), Currency(price)},
                   {QStringLiteral("Kubun"), number(kind)}});
    };
    for (int capacity = 1; capacity <= 100; ++capacity)
        add(1, 1, Currency(capacity), 2200 + capacity * 440);
    for (int tenths = 1; tenths <= 300; ++tenths) {
        add(2, 2, Currency(tenths) / Currency(10), 1700 + tenths * 56);
    }
}

void fillItems() {
    RowWriter table(QStringLiteral("Hin"));
    for (const Item& item : items) {
        table.add({{QStringLiteral("Code"), number(item.code)},
                   {QStringLiteral("Kana"), text(item.kana)},
                   {QStringLiteral("Namae"), text(item.name)},
                   {QStringLiteral("Tanka"), Currency(item.price)}});
    }
}

void fillConsignors() {
    RowWriter table(QStringLiteral("Bnk"));
    for (const ConsignorRow& row : consignors) {
        table.add({{QStringLiteral("Code"), number(row.code)},
                   {QStringLiteral("ItakuCode"), text(row.itakuCode)},
                   {QStringLiteral("Itakusya"), text(dealerKana)},
                   {QStringLiteral("fName"), text(row.fileName)},
                   {QStringLiteral("BkName"), text(row.bank)},
                   {QStringLiteral("Stn"), number(row.branch)},
                   {QStringLiteral("StnName"), text(row.branchName)},
                   {QStringLiteral("Syurui"), QStringLiteral("1")},
                   {QStringLiteral("KozaNo"), text(row.account)}});
    }
    table.add({{QStringLiteral("Code"), number(postOffice)},
               {QStringLiteral("ItakuCode"), QStringLiteral("10990456")},
               {QStringLiteral("Itakusya"), text(dealerKana)},
               {QStringLiteral("fName"), QStringLiteral("jiharai")},
               {QStringLiteral("BkName"), QStringLiteral("ﾕｳｾｲｼﾖｳﾁﾖｷﾝｷﾖｸ")},
               {QStringLiteral("Stn"), number(990)},
               {QStringLiteral("StnName"), QStringLiteral("ﾐﾄﾞﾘｶﾜ")},
               {QStringLiteral("Syurui"), QStringLiteral("1")},
               {QStringLiteral("KozaNo"), QStringLiteral("0123456")},
               {QStringLiteral("Saifurikae"), QStringLiteral("15")},
               {QStringLiteral("Keiyaku"), QStringLiteral("02")},
               {QStringLiteral("Jimusyo"), QStringLiteral("緑川貯金事務センター")}});
}

void fillPostalCodes() {
    RowWriter table(QStringLiteral("Zip7"));
    for (int route = 0; route < routeCount; ++route) {
        for (int index = 0; index < townsOfRoute; ++index) {
            const Town& town = townOf(route, index);
            table.add({{QStringLiteral("Code"), number(text(town.zip).remove(u'-').toInt())},
                       {QStringLiteral("Addr"), townAddress(town)}});
        }
    }
}

}  // namespace

const Item& itemAt(int index) {
    return items[index];
}

int takenTenths(const Item& item, Dice& dice) {
    if (item.code == hoseItem) return dice.between(5, 45);
    return 10 * (item.price < 10000 ? dice.between(1, 3) : 1);
}

const CollectingBank& bankAt(int index) {
    return banks[index];
}

void fillMasters() {
    fillRoutes();
    fillTariffs();
    fillCapacityPrices();
    fillItems();
    fillConsignors();
    fillPostalCodes();
}

}  // namespace akarix::sample
