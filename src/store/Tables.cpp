#include "store/Tables.h"

#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

ColumnDef IntegerColumn(const char16_t* name) {
    return {QString::fromUtf16(name), FieldType::Integer};
}
ColumnDef LongInteger(const char16_t* name) {
    return {QString::fromUtf16(name), FieldType::Long};
}
ColumnDef Money(const char16_t* name) {
    return {QString::fromUtf16(name), FieldType::Currency};
}
ColumnDef DateColumn(const char16_t* name) {
    return {QString::fromUtf16(name), FieldType::Date};
}
ColumnDef TextColumn(const char16_t* name, int width) {
    return {QString::fromUtf16(name), FieldType::Text, width};
}
/// Rows come with partial column lists, and one absent amount would blank a sum made in a query.
ColumnDef OrZero(ColumnDef column) {
    column.zeroDefault = true;
    return column;
}

TableDef Table(const char16_t* name, std::vector<ColumnDef> columns, const QStringList& key = {}) {
    TableDef def{QString::fromUtf16(name), std::move(columns), {}};
    if (!key.isEmpty()) def.uniqueKeys.push_back(key);
    return def;
}

const QStringList kByCode{u"Code"_s};
const QStringList kByLine{u"Dno"_s, u"Eda"_s};

std::vector<TableDef> Masters() {
    return {
        Table(u"Deal", {LongInteger(u"Code"),     IntegerColumn(u"Rte"),      TextColumn(u"Kana", 40),
                        TextColumn(u"Namae", 40), TextColumn(u"Ryaku", 20),   TextColumn(u"Yubin", 8),
                        TextColumn(u"Addr1", 50), TextColumn(u"Addr2", 50),   TextColumn(u"TEL", 15),
                        TextColumn(u"Fax", 15),   IntegerColumn(u"Sime"),     IntegerColumn(u"SH"),
                        IntegerColumn(u"Map"),    IntegerColumn(u"Sisetu"),   IntegerColumn(u"Simekiri"),
                        LongInteger(u"Haisou"),   IntegerColumn(u"TankaPtn"), IntegerColumn(u"Bnk"),
                        IntegerColumn(u"Stn"),    IntegerColumn(u"Kind"),     TextColumn(u"Koza", 10),
                        IntegerColumn(u"ACU"),    IntegerColumn(u"Keihou"),   IntegerColumn(u"NoSeikyu"),
                        Money(u"DiscGaku")},
              kByCode),
        Table(u"Hin",
              {LongInteger(u"Code"), TextColumn(u"Kana", 30), TextColumn(u"Namae", 40), Money(u"Tanka")},
              kByCode),
        Table(u"Rte",
              {IntegerColumn(u"Code"), TextColumn(u"Kana", 20), TextColumn(u"Namae", 30),
               IntegerColumn(u"Kensin")},
              kByCode),
        // The key keeps a price from being stored twice when a whole pattern is offered again.
        Table(u"Tnk", {IntegerColumn(u"Ptn"), Money(u"Capa"), Money(u"Tanka"), IntegerColumn(u"Kubun")},
              {u"Ptn"_s, u"Capa"_s}),
        // Overlapping bands come in the order of this key.
        Table(u"GasKeisan",
              {IntegerColumn(u"Ptn"), IntegerColumn(u"St"), IntegerColumn(u"Ed"), Money(u"Kihon"),
               Money(u"Tanka")},
              {u"Ptn"_s, u"St"_s, u"Ed"_s}),
        Table(u"NyukinKubun", {IntegerColumn(u"Code"), TextColumn(u"Namae", 20)}, kByCode),
        // Wider than the boxes of its screens, as Deal.Kana is: what came from elsewhere is cut where a
        // record of the request has no room for it, rather than refused as a row.
        Table(u"Bnk",
              {IntegerColumn(u"Code"), TextColumn(u"ItakuCode", 20), TextColumn(u"Itakusya", 60),
               TextColumn(u"fName", 60), TextColumn(u"BkName", 30), IntegerColumn(u"Stn"),
               TextColumn(u"StnName", 30), TextColumn(u"Syurui", 10), TextColumn(u"KozaNo", 20),
               TextColumn(u"Saifurikae", 10), TextColumn(u"Keiyaku", 30), TextColumn(u"Jimusyo", 30)},
              kByCode),
        Table(u"Zip7", {LongInteger(u"Code"), TextColumn(u"Addr", 100)}, kByCode),
        Table(u"zSysFunc", {LongInteger(u"Code"), TextColumn(u"contents", 255)}, kByCode),
        Table(u"UserOP", {LongInteger(u"Code"), TextColumn(u"contents", 255)}, kByCode),
    };
}

std::vector<TableDef> Documents() {
    return {
        Table(u"Dud",
              {LongInteger(u"Dno"), IntegerColumn(u"Eda"), DateColumn(u"Hizuke"), LongInteger(u"Deal"),
               LongInteger(u"HinCode"), TextColumn(u"HinNamae", 40), OrZero(Money(u"Suu")),
               OrZero(Money(u"Tanka")), OrZero(Money(u"Gaku")), IntegerColumn(u"Nendo"),
               IntegerColumn(u"Getudo"), OrZero(IntegerColumn(u"CreateAuto"))},
              kByLine),
        Table(u"Dgd",
              {IntegerColumn(u"Nendo"), IntegerColumn(u"Getudo"), LongInteger(u"Deal"),
               OrZero(Money(u"ZenkaiMeter")), OrZero(Money(u"KoukanMeter")), OrZero(Money(u"KoukanGoMeter")),
               OrZero(Money(u"KonkaiMeter")), OrZero(Money(u"Suu")), OrZero(Money(u"Gaku")),
               IntegerColumn(u"Hi"),
               // Nobody fills it; the deletion of a month asks for it.
               OrZero(IntegerColumn(u"Rte"))},
              {u"Nendo"_s, u"Getudo"_s, u"Deal"_s}),
        Table(u"Dny",
              {LongInteger(u"Dno"), OrZero(IntegerColumn(u"Eda")), DateColumn(u"Hizuke"),
               LongInteger(u"Deal"), OrZero(IntegerColumn(u"Kubun")), OrZero(Money(u"Gaku")),
               TextColumn(u"Naiyo", 40), IntegerColumn(u"Nendo"), IntegerColumn(u"Getudo")},
              kByLine),
        // The run's insert of an existing customer and month must change nothing.
        Table(u"TtoD",
              {LongInteger(u"Deal"), IntegerColumn(u"Nendo"), IntegerColumn(u"Getudo"),
               OrZero(Money(u"ZenkaiGaku")), OrZero(Money(u"GGaku")), OrZero(Money(u"UGaku")),
               OrZero(Money(u"Gaku")), OrZero(Money(u"NGaku")), OrZero(IntegerColumn(u"NFlg")),
               OrZero(IntegerColumn(u"SyokiFlg"))},
              {u"Deal"_s, u"Nendo"_s, u"Getudo"_s}),
        Table(u"Syukei", {IntegerColumn(u"Nen"), IntegerColumn(u"Tuki"), DateColumn(u"Hizuke")},
              {u"Nen"_s, u"Tuki"_s}),
        Table(u"FDLog", {IntegerColumn(u"Bnk"), IntegerColumn(u"Nendo"), IntegerColumn(u"Getudo")}),
    };
}

std::vector<TableDef> CodeLists() {
    std::vector<TableDef> lists;
    for (const char16_t* name : {u"Dbn", u"Kko", u"DyJkn", u"Col", u"Shk"}) {
        lists.push_back(Table(name,
                              {LongInteger(u"Code"), TextColumn(u"Kana", 30), TextColumn(u"Namae", 40),
                               TextColumn(u"Ryaku", 20)},
                              kByCode));
    }
    return lists;
}

std::vector<TableDef> Scratch() {
    return {
        Table(u"TempD", {LongInteger(u"Dno"), IntegerColumn(u"Nendo"), IntegerColumn(u"Getudo"),
                         IntegerColumn(u"Kubun"), DateColumn(u"Hizuke"), Money(u"KonkaiMeter"),
                         TextColumn(u"HinNamae", 40), Money(u"Suu"), Money(u"Tanka"), Money(u"Gaku"),
                         IntegerColumn(u"NFLG")}),
        Table(u"TempTtoD",
              {IntegerColumn(u"Nendo"), IntegerColumn(u"Getudo"), IntegerColumn(u"Eda"), IntegerColumn(u"Hi"),
               LongInteger(u"Dno"), Money(u"GGaku"), Money(u"UGaku"), Money(u"NGaku")}),
        Table(u"TempZan", {LongInteger(u"Code"), Money(u"Zan")}),
    };
}

}  // namespace

const std::vector<TableDef>& Tables() {
    static const std::vector<TableDef> all = [] {
        std::vector<TableDef> tables;
        for (const auto& group : {Masters(), Documents(), CodeLists(), Scratch()})
            tables.insert(tables.end(), group.begin(), group.end());
        return tables;
    }();
    return all;
}

const QStringList& IndexStatements() {
    static const QStringList statements{
        u"CREATE INDEX DudOfDeal ON Dud(Deal,Nendo,Getudo)"_s,
        u"CREATE INDEX DudOfMonth ON Dud(Nendo,Getudo)"_s,
        u"CREATE INDEX DnyOfDeal ON Dny(Deal,Nendo,Getudo)"_s,
        u"CREATE INDEX DnyOfMonth ON Dny(Nendo,Getudo)"_s,
        u"CREATE INDEX DgdOfDeal ON Dgd(Deal,Nendo,Getudo)"_s,
        u"CREATE INDEX TtoDOfMonth ON TtoD(Nendo,Getudo)"_s,
    };
    return statements;
}

}  // namespace akarix
