#include "store/CreateDatabase.h"

#include "platform/dao/DBEngine.h"
#include "platform/dialect/Engine.h"
#include "platform/runtime/Action.h"
#include "platform/runtime/Literals.h"
#include "store/Tables.h"
#include "store/dbAccess.h"

namespace akarix {

namespace {

struct Setting {
    int code;
    const char16_t* contents;
};

// A blank stands for "empty": no text column holds a text without length.
const Setting kSystemSettings[] = {
    {1, u"31"},   // closing day of a new customer: the month's end
    {2, u"1"},    // pages are shown before they are printed
    {3, u"25"},   // reading day
    {100, u"1"},  // invoices by the workbook template
    {123, u" "},  // no password
};

const Setting kUserOptions[] = {
    {1, u"2"},    // western years
    {2, u"300"},  // alarm lease, yen a month
    {3, u"500"},  // ACU lease, yen a month
};
constexpr int kFirstConsignorOption = 4;
constexpr int kLastConsignorOption = 22;

struct Named {
    int code;
    const char16_t* name;
};

// 2 is the class that the reading of a debit result posts.
const Named kPaymentClasses[] = {{1, u"集金"}, {2, u"口座振替"}, {3, u"振込"}, {4, u"相殺"}, {5, u"値引"}};

struct CodeListEntry {
    const char16_t* table;
    int code;
    const char16_t* kana;
    const char16_t* name;
};

const CodeListEntry kCodeListEntries[] = {
    {u"Dbn", 1, u"ｲﾂﾊﾟﾝ", u"一般"},     {u"Dbn", 2, u"ｷﾞﾖｳﾑ", u"業務用"}, {u"Kko", 1, u"ﾅｼ", u"なし"},
    {u"DyJkn", 1, u"ﾋﾖｳｼﾞﾕﾝ", u"標準"}, {u"Col", 1, u"ｼﾛ", u"白"},        {u"Col", 2, u"ﾊｲ", u"灰"},
    {u"Shk", 1, u"ﾊｲﾀﾂ", u"配達"},      {u"Shk", 2, u"ｼﾞｻﾝ", u"持参"},
};

/// Defaults have no place in the dialect, so a table's definition goes to the engine as it is.
void Define(Database& db, const TableDef& table) {
    db.engine().define({Definition::Kind::CreateTable, table});
}

void AddSetting(Database& db, const QString& table, int code, const QString& contents) {
    db.Execute(
        u"INSERT INTO %1(Code,contents) VALUES(%2,'%3')"_s.arg(table, QString::number(code), contents));
}

void FillSettings(Database& db) {
    for (const Setting& row : kSystemSettings)
        AddSetting(db, u"zSysFunc"_s, row.code, QString::fromUtf16(row.contents));
    for (const Setting& row : kUserOptions)
        AddSetting(db, u"UserOP"_s, row.code, QString::fromUtf16(row.contents));
    for (int code = kFirstConsignorOption; code <= kLastConsignorOption; ++code)
        AddSetting(db, u"UserOP"_s, code, u" "_s);
}

void FillCodes(Database& db) {
    for (const Named& row : kPaymentClasses) {
        db.Execute(u"INSERT INTO NyukinKubun(Code,Namae) VALUES(%1,'%2')"_s.arg(row.code).arg(
            QString::fromUtf16(row.name)));
    }
    for (const CodeListEntry& row : kCodeListEntries) {
        const QString name = QString::fromUtf16(row.name);
        db.Execute(u"INSERT INTO %1(Code,Kana,Namae,Ryaku) VALUES(%2,'%3','%4','%4')"_s
                       .arg(QString::fromUtf16(row.table))
                       .arg(row.code)
                       .arg(QString::fromUtf16(row.kana), name));
    }
}

}  // namespace

void CreateDelivered(const QString& path) {
    Database* db = DBEngine::Workspaces(0).CreateDatabase(path, ConnectText());
    {
        const Action all;
        for (const TableDef& table : Tables())
            Define(*db, table);
        for (const QString& statement : IndexStatements())
            db->Execute(statement);
        FillSettings(*db);
        FillCodes(*db);
    }
    db->Close();
}

}  // namespace akarix
