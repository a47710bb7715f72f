#include <gmock/gmock.h>

#include <functional>

#include "admin/Columns.h"
#include "billing/Tto.h"
#include "ledger/LedgerProof.h"
#include "ledger/ReadingCheck.h"
#include "platform/jet/Action.h"
#include "platform/runtime/DateSerial.h"
#include "support/ScratchStore.h"
#include "tools/AdminRun.h"

namespace akarix {
namespace {

using testing::HasSubstr;

/// Two customers, three months billed by the product: the first pays what he owes, the second came with a
/// balance and has a slip.
class ThreeMonths : public testing::Test {
 protected:
    void SetUp() override {
        ScratchStore::run(
            u"INSERT INTO Deal(Code,Namae,Sime) VALUES(1,'山田',31);\n"
            "INSERT INTO Deal(Code,Namae,Sime) VALUES(2,'川上',31);\n"
            "INSERT INTO TtoD(Deal,Nendo,Getudo,ZenkaiGaku,SyokiFlg) VALUES(2,2011,1,5000,1)"_qs);
        for (int month = 1; month <= 3; ++month) {
            for (int deal = 1; deal <= 2; ++deal) {
                ScratchStore::run(
                    u"INSERT INTO Dgd(Nendo,Getudo,Deal,ZenkaiMeter,KonkaiMeter,Suu,Gaku,Hi) "
                    "VALUES(2011,%1,%2,%3,%4,10,3000,20)"_qs.arg(month)
                        .arg(deal)
                        .arg(month * 10)
                        .arg(month * 10 + 10));
            }
            ScratchStore::run(payment(month, 1, month, 1, 3000));
            if (month == 2) ScratchStore::run(slip(1, 2, 2, 700));
            BuildMonthLedger(2011, month, DateSerial(2011, month + 1, 0));
            CarryForwardMonth(2011, month);
        }
    }

    static QString payment(int number, int deal, int month, int kubun, int yen) {
        return u"INSERT INTO Dny(Dno,Eda,Hizuke,Deal,Kubun,Gaku,Nendo,Getudo) "
               "VALUES(%1,%2,CDATE('2011/%3/15'),%4,%2,%5,2011,%3)"_qs.arg(number)
                   .arg(kubun)
                   .arg(month)
                   .arg(deal)
                   .arg(yen);
    }
    static QString slip(int number, int deal, int month, int yen) {
        return u"INSERT INTO Dud(Dno,Eda,Hizuke,Deal,HinCode,HinNamae,Gaku,Nendo,Getudo) "
               "VALUES(%1,1,CDATE('2011/%2/10'),%3,1,'ホース',%4,2011,%2)"_qs.arg(number)
                   .arg(month)
                   .arg(deal)
                   .arg(yen);
    }

    const ScratchStore store_;
};

TEST_F(ThreeMonths, ADifferenceIsToldWithWhyItArose) {
    const QString ofMarch = u" WHERE Deal=1 AND Nendo=2011 AND Getudo=3"_qs;
    const QString ofFebruary = u" WHERE Deal=1 AND Nendo=2011 AND Getudo=2"_qs;
    struct {
        const char* what;
        QString plant;
        QString told;
    } const cases[] = {
        {"nothing", QString(), QString()},
        {"a figure changed by itself", u"UPDATE TtoD SET GGaku=GGaku+1"_qs + ofMarch,
         u"1 2011/3 GGaku 3000 3001 5|1 2011/3 Gaku 3001 3000 5"_qs},
        {"a reading corrected after the run", u"UPDATE Dgd SET Gaku=3100"_qs + ofMarch,
         u"1 2011/3 GGaku 3100 3000 1"_qs},
        {"a slip after the run", slip(2, 1, 3, 400), u"1 2011/3 UGaku 400 0 1"_qs},
        {"a slip of an earlier month, which was billed again",
         slip(2, 1, 2, 400) + u";\nUPDATE TtoD SET UGaku=400,Gaku=3400"_qs + ofFebruary,
         u"1 2011/3 ZenkaiGaku 400 0 1"_qs},
        {"a payment for February entered after March was billed",
         payment(9, 1, 2, 3, 500) + u";\nUPDATE TtoD SET NGaku=3500"_qs + ofFebruary,
         u"1 2011/3 ZenkaiGaku -500 0 2"_qs},
        {"a debit read back beside another payment",
         payment(9, 1, 3, 2, 800) + u";\nUPDATE TtoD SET NGaku=800"_qs + ofMarch,
         u"1 2011/3 NGaku 3800 800 3"_qs},
        {"payments moved away", u"DELETE FROM Dny WHERE Dno=3"_qs, u"1 2011/3 NGaku 0 3000 4"_qs},
        {"a reading deleted", u"DELETE FROM Dgd"_qs + ofMarch, u"1 2011/3 GGaku 0 3000 4"_qs},
        {"a balance set by hand over another", u"UPDATE TtoD SET ZenkaiGaku=7,SyokiFlg=1"_qs + ofMarch,
         u"1 2011/3 ZenkaiGaku 0 7 0"_qs},
        {"a row lost", u"DELETE FROM TtoD"_qs + ofMarch, u"1 2011/3 行 1 0 1"_qs},
        {"a month that nobody has billed yet",
         slip(2, 1, 4, 400) + u";\nINSERT INTO TtoD(Deal,Nendo,Getudo,ZenkaiGaku) VALUES(1,2011,4,77)"_qs,
         QString()},
    };
    const QByteArray billed = admin::contentsOf(store_.path());
    for (const auto& [what, plant, told] : cases) {
        CloseDb();
        admin::writeFile(store_.path(), billed);
        OpenDb([](const QString&, const QString&) {});
        ScratchStore::run(plant);
        QStringList found;
        const LedgerProof proof = ProveLedger(*gDb, [](int, int) {});
        for (const auto& [d, cause] : proof.findings) {
            found += u"%1 %2/%3 %4 %5 %6 %7"_qs.arg(d.deal)
                         .arg(d.nendo)
                         .arg(d.getudo)
                         .arg(d.column, amountText(d.expected), amountText(d.found))
                         .arg(static_cast<int>(cause));
        }
        EXPECT_EQ(found.join(u'|').toStdString(), told.toStdString()) << what;
        EXPECT_EQ(proof.months, 3);
        EXPECT_EQ(proof.openings, 1);
    }
}

TEST_F(ThreeMonths, WhatAPurgedMonthCarriedIsNotHeldAgainstTheNext) {
    for (const char16_t* table : {u"TtoD", u"Dgd", u"Dud", u"Dny"}) {
        ScratchStore::run(u"DELETE FROM %1 WHERE Nendo=2011 AND Getudo=1"_qs.arg(QString::fromUtf16(table)));
    }
    const LedgerProof proof = ProveLedger(*gDb, [](int, int) {});
    EXPECT_TRUE(proof.findings.empty());
    EXPECT_EQ(proof.unproved, 1);
    EXPECT_EQ(proof.first, std::pair(2011, 2));
}

TEST_F(ThreeMonths, CheckTellsADealerAndAScript) {
    CloseDb();
    const QByteArray sound = admin::contentsOf(store_.path());
    const auto withStore = [&](const QString& plant) {
        admin::writeFile(store_.path(), sound);
        OpenDb([](const QString&, const QString&) {});
        ScratchStore::run(plant);
        CloseDb();
    };
    struct {
        QString plant;
        QString arguments;
        int code;
        const char* says;
    } const cases[] = {
        {QString(), {}, 0, "すべて合います"},
        {u"UPDATE TtoD SET UGaku=UGaku+1 WHERE Deal=2 AND Getudo=2"_qs,
         {},
         1,
         "2011/02       2  川上  売上金額     700     701   1  不明"},
        {u"UPDATE TtoD SET UGaku=UGaku+1 WHERE Deal=2 AND Getudo=2"_qs, u" --since 2011/4"_qs, 0,
         "2011/04 から"},
        {u"UPDATE TtoD SET ZenkaiGaku=7,SyokiFlg=1 WHERE Deal=1 AND Getudo=3"_qs, {}, 0, "繰越を手で決めた"},
        {u"UPDATE Dgd SET Suu=-10,KonkaiMeter=20 WHERE Deal=1 AND Getudo=3"_qs, {}, 1, "使用量がマイナス"},
    };
    for (const auto& [plant, arguments, code, says] : cases) {
        withStore(plant);
        const QByteArray before = admin::contentsOf(store_.path());
        const admin::Outcome outcome = admin::run(u"check Akarix.MDB"_qs + arguments);
        EXPECT_EQ(outcome.code, code) << says;
        EXPECT_THAT(outcome.said, HasSubstr(says));
        EXPECT_EQ(admin::contentsOf(store_.path()), before) << "a check changes nothing";
    }
    withStore({});
    const admin::Holder holder(store_.path());
    EXPECT_THAT(admin::run(u"check"_qs).said, HasSubstr("使用中です: sleep"));
}

TEST(Check, ADamagedFileIsToldPageByPage) {
    ScratchStore store;
    {
        const Action all;
        for (int i = 0; i < 3000; ++i)
            ScratchStore::run(u"INSERT INTO Zip7(Code,Addr) VALUES(%1,'緑川市本町')"_qs.arg(1000000 + i));
    }
    ScratchStore::run(u"DELETE FROM Zip7"_qs);
    CloseDb();
    const QByteArray sound = admin::contentsOf(store.path());
    const int last = static_cast<int>(sound.size() / 4096);
    EXPECT_EQ(admin::run(u"check"_qs).code, 0) << "pages given back keep their seal";
    struct {
        std::function<void(const QString&)> damage;
        int code;
        std::string says;
    } const cases[] = {
        {[](const QString& path) { admin::breakPage(path, 4); }, 2, "1 ページが壊れています（4）"},
        {[](const QString& path) { admin::breakPage(path, 1); }, 2, "（1）"},
        {[last](const QString& path) { admin::breakPage(path, last); }, 1, std::to_string(last)},
        {[&sound](const QString& path) { admin::writeFile(path, sound.left(sound.size() / 2 + 100)); }, 2,
         "終わりが切れています"},
        {[](const QString& path) { admin::writeFile(path, QByteArray(9000, 'x')); }, 2,
         "Akarix のデータベースではない"},
        {[](const QString& path) { admin::writeFile(path, {}); }, 2, "Akarix のデータベースではない"},
        {[](const QString& path) {
             QFile::remove(path);
             DBEngine::Workspaces(0).CreateDatabase(path, u"MS Access;PWD=other"_qs)->Close();
         },
         2, "パスワード"},
        {[](const QString& path) { QFile::remove(path); }, 2, "ファイルがありません"},
    };
    for (const auto& [damage, code, says] : cases) {
        admin::writeFile(store.path(), sound);
        damage(store.path());
        const admin::Outcome outcome = admin::run(u"check"_qs);
        EXPECT_EQ(outcome.code, code) << says;
        EXPECT_THAT(outcome.said, HasSubstr(says));
    }
}

TEST(Readings, OnesOutOfTheRowAreDoubted) {
    struct {
        const char* uses;  // m³, month after month
        const char* doubted;
    } const cases[] = {
        {"20 21 19 18 22", ""},
        {"20 21 19 18 64", "4:3"},
        {"20 21 64", ""},   // too young to have a usual use
        {"1 1 1 1 4", ""},  // small uses jump
        {"30 31 40 29 5", "4:4"},
        {"30 31 40 29 0", ""},  // an empty house
        {"30 31 40 -29 31", "3:0"},
        {"60 20 20 20 20 20 20 20 20 20 20 20 20 80", "13:3"},  // the 60 is more than a year ago
    };
    for (const auto& [uses, doubted] : cases) {
        const ScratchStore store;
        int month = 0;
        int meter = 100;
        for (const QString& use : QString::fromLatin1(uses).split(u' ')) {
            ScratchStore::run(
                u"INSERT INTO Dgd(Nendo,Getudo,Deal,ZenkaiMeter,KonkaiMeter,Suu,Gaku) "
                "VALUES(%1,%2,5,%3,%4,%5,2000)"_qs.arg(2010 + month / 12)
                    .arg(month % 12 + 1)
                    .arg(meter)
                    .arg(meter + use.toInt())
                    .arg(use));
            meter += use.toInt();
            ++month;
        }
        QStringList found;
        for (const DoubtfulReading& reading : CheckReadings(*gDb, LastYearOfReadings(*gDb))) {
            found += u"%1:%2"_qs.arg((reading.nendo - 2010) * 12 + reading.getudo - 1)
                         .arg(static_cast<int>(reading.doubt));
        }
        EXPECT_EQ(found.join(u' ').toStdString(), doubted) << uses;
    }
}

TEST(Readings, FiguresThatDoNotBelongTogetherAreDoubted) {
    const ScratchStore store;
    const auto doubts = [] {
        QStringList found;
        for (const DoubtfulReading& reading : CheckReadings(*gDb, 201104))
            found += u"%1:%2"_qs.arg(reading.deal).arg(static_cast<int>(reading.doubt));
        return found.join(u' ');
    };
    const QString columns =
        u"INSERT INTO Dgd(Nendo,Getudo,Deal,ZenkaiMeter,KoukanMeter,KoukanGoMeter,KonkaiMeter,Suu,Gaku) "
        "VALUES(2011,4,"_qs;
    ScratchStore::run(columns + u"1,900,950,0,12,62,9000)"_qs);  // exchanged
    ScratchStore::run(columns + u"2,100,0,0,0,0,0)"_qs);         // listed, not read
    EXPECT_EQ(doubts(), QString());
    ScratchStore::run(columns + u"3,100,0,0,120,20,0)"_qs);
    ScratchStore::run(columns + u"4,100,0,0,120,21,9000)"_qs);
    EXPECT_EQ(doubts(), u"3:1 4:2"_qs);
}

TEST(AdminColumns, LineUpWithWideCharacters) {
    admin::Columns table({u"名前"_qs, u">料金"_qs, u"わけ"_qs});
    table.add({u"ﾔﾏﾀﾞ"_qs, u"1,234"_qs, u"多い"_qs});
    table.add({u"山田太郎"_qs, u"5"_qs, QString()});
    EXPECT_EQ(table.text(), u"  名前       料金  わけ\n  ﾔﾏﾀﾞ      1,234  多い\n  山田太郎      5\n"_qs);
}

}  // namespace
}  // namespace akarix
