#include "store/Tables.h"

namespace akarix {

namespace {

ColumnDef integer(const char16_t* name) {
    return {QString::fromUtf16(name), FieldType::Integer};
}
ColumnDef longInteger(const char16_t* name) {
    return {QString::fromUtf16(name), FieldType::Long};
}
ColumnDef money(const char16_t* name) {
    return {QString::fromUtf16(name), FieldType::Currency};
}
ColumnDef date(const char16_t* name) {
    return {QString::fromUtf16(name), FieldType::Date};
}
ColumnDef text(const char16_t* name, int width) {
    return {QString::fromUtf16(name), FieldType::Text, width};
}
/// Rows come with partial column lists, and one absent amount would blank a sum made in a query.
ColumnDef orZero(ColumnDef column) {
    column.zeroDefault = true;
    return column;
}

TableDef table(const char16_t* name, std::vector<ColumnDef> columns, const QStringList& key = {}) {
    TableDef def{QString::fromUtf16(name), std::move(columns), {}};
    if (!key.isEmpty()) def.uniqueKeys.push_back(key);
    return def;
}

const QStringList byCode{QStringLiteral("Code")};
const QStringList byLine{QStringLiteral("Dno"), QStringLiteral("Eda")};

std::vector<TableDef> masters() {
    return {
        table(u"Deal",
              {longInteger(u"Code"), integer(u"Rte"),    text(u"Kana", 40),    text(u"Namae", 40),
               text(u"Ryaku", 20),   text(u"Yubin", 8),  text(u"Addr1", 50),   text(u"Addr2", 50),
               text(u"TEL", 15),     text(u"Fax", 15),   integer(u"Sime"),     integer(u"SH"),
               integer(u"Map"),      integer(u"Sisetu"), integer(u"Simekiri"), longInteger(u"Haisou"),
               integer(u"TankaPtn"), integer(u"Bnk"),    integer(u"Stn"),      integer(u"Kind"),
               text(u"Koza", 10),    integer(u"ACU"),    integer(u"Keihou"),   integer(u"NoSeikyu"),
               money(u"DiscGaku")},
              byCode),
        table(u"Hin", {longInteger(u"Code"), text(u"Kana", 30), text(u"Namae", 40), money(u"Tanka")}, byCode),
        table(u"Rte", {integer(u"Code"), text(u"Kana", 20), text(u"Namae", 30), integer(u"Kensin")}, byCode),
        // The key keeps a price from being stored twice when a whole pattern is offered again.
        table(u"Tnk", {integer(u"Ptn"), money(u"Capa"), money(u"Tanka"), integer(u"Kubun")},
              {QStringLiteral("Ptn"), QStringLiteral("Capa")}),
        // Overlapping bands come in the order of this key.
        table(u"GasKeisan",
              {integer(u"Ptn"), integer(u"St"), integer(u"Ed"), money(u"Kihon"), money(u"Tanka")},
              {QStringLiteral("Ptn"), QStringLiteral("St"), QStringLiteral("Ed")}),
        table(u"NyukinKubun", {integer(u"Code"), text(u"Namae", 20)}, byCode),
        // Wider than the boxes of its screens, as Deal.Kana is: what came from elsewhere is cut where a
        // record of the request has no room for it, rather than refused as a row.
        table(u"Bnk",
              {integer(u"Code"), text(u"ItakuCode", 20), text(u"Itakusya", 60), text(u"fName", 60),
               text(u"BkName", 30), integer(u"Stn"), text(u"StnName", 30), text(u"Syurui", 10),
               text(u"KozaNo", 20), text(u"Saifurikae", 10), text(u"Keiyaku", 30), text(u"Jimusyo", 30)},
              byCode),
        table(u"Zip7", {longInteger(u"Code"), text(u"Addr", 100)}, byCode),
        table(u"zSysFunc", {longInteger(u"Code"), text(u"contents", 255)}, byCode),
        table(u"UserOP", {longInteger(u"Code"), text(u"contents", 255)}, byCode),
    };
}

std::vector<TableDef> documents() {
    return {
        table(u"Dud",
              {longInteger(u"Dno"), integer(u"Eda"), date(u"Hizuke"), longInteger(u"Deal"),
               longInteger(u"HinCode"), text(u"HinNamae", 40), orZero(money(u"Suu")), orZero(money(u"Tanka")),
               orZero(money(u"Gaku")), integer(u"Nendo"), integer(u"Getudo"), orZero(integer(u"CreateAuto"))},
              byLine),
        table(u"Dgd",
              {integer(u"Nendo"), integer(u"Getudo"), longInteger(u"Deal"), orZero(money(u"ZenkaiMeter")),
               orZero(money(u"KoukanMeter")), orZero(money(u"KoukanGoMeter")), orZero(money(u"KonkaiMeter")),
               orZero(money(u"Suu")), orZero(money(u"Gaku")), integer(u"Hi"),
               // Nobody fills it; the deletion of a month asks for it.
               orZero(integer(u"Rte"))},
              {QStringLiteral("Nendo"), QStringLiteral("Getudo"), QStringLiteral("Deal")}),
        table(u"Dny",
              {longInteger(u"Dno"), orZero(integer(u"Eda")), date(u"Hizuke"), longInteger(u"Deal"),
               orZero(integer(u"Kubun")), orZero(money(u"Gaku")), text(u"Naiyo", 40), integer(u"Nendo"),
               integer(u"Getudo")},
              byLine),
        // The run's insert of an existing customer and month must change nothing.
        table(u"TtoD",
              {longInteger(u"Deal"), integer(u"Nendo"), integer(u"Getudo"), orZero(money(u"ZenkaiGaku")),
               orZero(money(u"GGaku")), orZero(money(u"UGaku")), orZero(money(u"Gaku")),
               orZero(money(u"NGaku")), orZero(integer(u"NFlg")), orZero(integer(u"SyokiFlg"))},
              {QStringLiteral("Deal"), QStringLiteral("Nendo"), QStringLiteral("Getudo")}),
        table(u"Syukei", {integer(u"Nen"), integer(u"Tuki"), date(u"Hizuke")},
              {QStringLiteral("Nen"), QStringLiteral("Tuki")}),
        table(u"FDLog", {integer(u"Bnk"), integer(u"Nendo"), integer(u"Getudo")}),
    };
}

std::vector<TableDef> codeLists() {
    std::vector<TableDef> lists;
    for (const char16_t* name : {u"Dbn", u"Kko", u"DyJkn", u"Col", u"Shk"}) {
        lists.push_back(table(
            name, {longInteger(u"Code"), text(u"Kana", 30), text(u"Namae", 40), text(u"Ryaku", 20)}, byCode));
    }
    return lists;
}

std::vector<TableDef> scratch() {
    return {
        table(u"TempD", {longInteger(u"Dno"), integer(u"Nendo"), integer(u"Getudo"), integer(u"Kubun"),
                         date(u"Hizuke"), money(u"KonkaiMeter"), text(u"HinNamae", 40), money(u"Suu"),
                         money(u"Tanka"), money(u"Gaku"), integer(u"NFLG")}),
        table(u"TempTtoD", {integer(u"Nendo"), integer(u"Getudo"), integer(u"Eda"), integer(u"Hi"),
                            longInteger(u"Dno"), money(u"GGaku"), money(u"UGaku"), money(u"NGaku")}),
        table(u"TempZan", {longInteger(u"Code"), money(u"Zan")}),
    };
}

}  // namespace

const std::vector<TableDef>& Tables() {
    static const std::vector<TableDef> all = [] {
        std::vector<TableDef> tables;
        for (const auto& group : {masters(), documents(), codeLists(), scratch()}) {
            tables.insert(tables.end(), group.begin(), group.end());
        }
        return tables;
    }();
    return all;
}

const QStringList& IndexStatements() {
    static const QStringList statements{
        QStringLiteral("CREATE INDEX DudOfDeal ON Dud(Deal,Nendo,Getudo)"),
        QStringLiteral("CREATE INDEX DudOfMonth ON Dud(Nendo,Getudo)"),
        QStringLiteral("CREATE INDEX DnyOfDeal ON Dny(Deal,Nendo,Getudo)"),
        QStringLiteral("CREATE INDEX DnyOfMonth ON Dny(Nendo,Getudo)"),
        QStringLiteral("CREATE INDEX DgdOfDeal ON Dgd(Deal,Nendo,Getudo)"),
        QStringLiteral("CREATE INDEX TtoDOfMonth ON TtoD(Nendo,Getudo)"),
    };
    return statements;
}

}  // namespace akarix
