#include "sample/SampleMasters.h"

#include "platform/runtime/Literals.h"
#include "sample/Names.h"
#include "sample/RowWriter.h"

namespace akarix::sample {

namespace {

struct Route {
    const char16_t* kana;
    const char16_t* name;
    int readingDay;
};

const Route kRoutes[kRouteCount] = {
    {u"ﾎﾝﾁﾖｳ", u"本町地区", 20}, {u"ｴｷﾏｴ", u"駅前地区", 21},   {u"ｶﾜﾆｼ", u"川西地区", 22},
    {u"ﾔﾏﾃ", u"山手地区", 23},   {u"ﾊﾏﾄﾞｵﾘ", u"浜通地区", 24}, {u"ｼﾝﾃﾞﾝ", u"新田地区", 25},
};

/// Bounds of the bands, shared by neighbours so that a use with a fraction is always inside one.
constexpr int kBandCount = 5;
constexpr int kBounds[kBandCount + 1] = {0, 5, 10, 20, 30, 999};

struct TariffRow {
    Tariff pattern;
    int basicTenths;              ///< of a yen
    int tenthsOfYen[kBandCount];  ///< price of a cubic metre in each band
};

const TariffRow kTariffs[] = {
    {HouseTariff, 17000, {5800, 5600, 5350, 5100, 4900}},
    {ApartmentTariff, 19000, {5950, 5750, 5500, 5250, 5050}},
    {BusinessTariff, 22000, {5200, 4950, 4655, 4405, 4105}},
    {BulkTariff, 30005, {4805, 4555, 4205, 3905, 3605}},
    {PublicTariff, 20005, {5405, 5155, 4905, 4655, 4405}},
};

const Item kItems[kItemCount] = {
    {1, u"ﾎﾞﾝﾍﾞ20", u"LPガス 20kgボンベ", 8800},
    {2, u"ﾎﾞﾝﾍﾞ50", u"LPガス 50kgボンベ", 19800},
    {3, u"ﾎﾞﾝﾍﾞ8", u"LPガス 8kgボンベ", 4200},
    {10, u"ｶﾞｽｺﾝﾛ", u"ガスコンロ 2口", 29800},
    {11, u"ｷﾕｳﾄｳｷ", u"ガス給湯器 16号", 138000},
    {12, u"ｶﾞｽﾌｱﾝﾋｰﾀ", u"ガスファンヒーター", 42800},
    {kHoseItem, u"ｶﾞｽﾎｰｽ", u"ガスホース 9.5mm 1m", 583},
    {21, u"ﾁﾖｳｾｲｷ", u"調整器", 6800},
    {22, u"ｹｲﾎｳｷ", u"ガス警報器", 7480},
    {30, u"ｼﾕﾂﾁﾖｳ", u"出張修理代", 4500},
    {31, u"ﾊｲｶﾝｺｳｼﾞ", u"配管工事", 18000},
    {kTaxItem, u"ｼﾖｳﾋｾﾞｲ", u"消費税", 0},
};

const CollectingBank kBanks[kBankCount] = {
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

const ConsignorRow kConsignors[] = {
    {152, u"0000152301", u"FURI0152.TXT", u"ﾐﾄﾞﾘｶﾜｷﾞﾝｺｳ", 1, u"ﾎﾝﾃﾝ", u"1023344"},
    {543, u"0000543877", u"FURI0543.TXT", u"ﾋｶﾞｼｳﾐｷﾞﾝｺｳ", 101, u"ｴｷﾏｴ", u"2210987"},
    {1405, u"0001405112", u"FURI1405.TXT", u"ｼﾛﾔﾏｼﾝｷﾝ", 3, u"ｼﾛﾔﾏ", u"0345671"},
};

QString Text(const char16_t* value) {
    return QString::fromUtf16(value);
}

void FillRoutes() {
    RowWriter table(u"Rte"_s, u"Code,Kana,Namae,Kensin"_s);
    for (int i = 0; i < kRouteCount; ++i) {
        const Route& route = kRoutes[i];
        table.add({i + 1, route.kana, route.name, route.readingDay});
    }
}

void FillTariffs() {
    RowWriter table(u"GasKeisan"_s, u"Ptn,St,Ed,Kihon,Tanka"_s);
    for (const TariffRow& tariff : kTariffs) {
        int basicTenths = tariff.basicTenths;
        for (int band = 0; band < kBandCount; ++band) {
            table.add({tariff.pattern, kBounds[band], kBounds[band + 1], Currency(basicTenths) / Currency(10),
                       Currency(tariff.tenthsOfYen[band]) / Currency(10)});
            // A band's basic charge holds what the bands below it cost.
            basicTenths += (kBounds[band + 1] - kBounds[band]) * tariff.tenthsOfYen[band] / 10 * 10;
        }
    }
}

void FillCapacityPrices() {
    RowWriter table(u"Tnk"_s, u"Ptn,Capa,Tanka,Kubun"_s);
    const auto add = [&table](int pattern, int kind, Currency capacity, int price) {
        table.add({pattern, capacity, Currency(price), kind});
    };
    for (int capacity = 1; capacity <= 100; ++capacity)
        add(1, 1, Currency(capacity), 2200 + capacity * 440);
    for (int tenths = 1; tenths <= 300; ++tenths)
        add(2, 2, Currency(tenths) / Currency(10), 1700 + tenths * 56);
}

void FillItems() {
    RowWriter table(u"Hin"_s, u"Code,Kana,Namae,Tanka"_s);
    for (const Item& item : kItems)
        table.add({item.code, item.kana, item.name, Currency(item.price)});
}

void FillConsignors() {
    const QString columns = u"Code,ItakuCode,Itakusya,fName,BkName,Stn,StnName,Syurui,KozaNo"_s;
    RowWriter banks(u"Bnk"_s, columns);
    for (const ConsignorRow& row : kConsignors) {
        banks.add({row.code, row.itakuCode, dealerKana, row.fileName, row.bank, row.branch, row.branchName,
                   u"1"_s, row.account});
    }
    RowWriter(u"Bnk"_s, columns + u",Saifurikae,Keiyaku,Jimusyo"_s)
        .add({kPostOffice, u"10990456"_s, dealerKana, u"jiharai"_s, u"ﾕｳｾｲｼﾖｳﾁﾖｷﾝｷﾖｸ"_s, 990, u"ﾐﾄﾞﾘｶﾜ"_s,
              u"1"_s, u"0123456"_s, u"15"_s, u"02"_s, u"緑川貯金事務センター"_s});
}

void FillPostalCodes() {
    RowWriter table(u"Zip7"_s, u"Code,Addr"_s);
    for (int route = 0; route < kRouteCount; ++route) {
        for (int index = 0; index < kTownsOfRoute; ++index) {
            const Town& town = TownOf(route, index);
            table.add({Text(town.zip).remove(u'-').toInt(), TownAddress(town)});
        }
    }
}

}  // namespace

const Item& ItemAt(int index) {
    return kItems[index];
}

int TakenTenths(const Item& item, Dice& dice) {
    if (item.code == kHoseItem) return dice.between(5, 45);
    return 10 * (item.price < 10000 ? dice.between(1, 3) : 1);
}

const CollectingBank& BankAt(int index) {
    return kBanks[index];
}

void FillMasters() {
    FillRoutes();
    FillTariffs();
    FillCapacityPrices();
    FillItems();
    FillConsignors();
    FillPostalCodes();
}

}  // namespace akarix::sample
