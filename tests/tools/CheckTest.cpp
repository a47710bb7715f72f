#include <gmock/gmock.h>

#include <functional>

#include "billing/Tto.h"
#include "ledger/LeaseCheck.h"
#include "ledger/LedgerProof.h"
#include "ledger/ReadingCheck.h"
#include "platform/runtime/Action.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Literals.h"
#include "support/ScratchStore.h"
#include "tools/AdminRun.h"

namespace akarix {
namespace {

using testing::HasSubstr;

/// The text with numbers in the places %1, %2 and so on.
QString Filled(QString text, std::initializer_list<int> numbers) {
    for (const int number : numbers)
        text = text.arg(number);
    return text;
}

/// Two customers, three months billed by the product: the first pays what he owes, the second came with a
/// balance and has a slip.
class ThreeMonths : public testing::Test {
 protected:
    void SetUp() override {
        ScratchStore::run(
            u"INSERT INTO Deal(Code,Namae,Sime) VALUES(1,'山田',31),(2,'川上',31);\n"
            "INSERT INTO TtoD(Deal,Nendo,Getudo,ZenkaiGaku,SyokiFlg) VALUES(2,2011,1,5000,1)"_s);
        for (int month = 1; month <= 3; ++month) {
            for (int deal = 1; deal <= 2; ++deal) {
                ScratchStore::run(
                    Filled(u"INSERT INTO Dgd(Nendo,Getudo,Deal,ZenkaiMeter,KonkaiMeter,Suu,Gaku,Hi) "
                           "VALUES(2011,%1,%2,%3,%4,10,3000,20)"_s,
                           {month, deal, month * 10, month * 10 + 10}));
            }
            ScratchStore::run(payment(month, 1, month, 1, 3000));
            if (month == 2) ScratchStore::run(slip(1, 2, 2, 700));
            BuildMonthLedger({2011, month}, DateSerial(2011, month + 1, 0));
            CarryForwardMonth({2011, month});
        }
    }

    void plantInto(const QByteArray& sound, const QString& plant) const {
        CloseDb();
        admin::WriteFile(store_.path(), sound);
        OpenDb([](const QString&, const QString&) {});
        ScratchStore::run(plant);
    }
    static void purge(int deal, int month) {
        for (const char16_t* table : {u"TtoD", u"Dgd", u"Dud", u"Dny"}) {
            ScratchStore::run(
                u"DELETE FROM %1 WHERE Nendo=2011 AND Getudo=%2 AND Deal=%3"_s.arg(QString::fromUtf16(table))
                    .arg(month)
                    .arg(deal));
        }
    }
    static QString payment(int number, int deal, int month, int kubun, int yen) {
        return Filled(
            u"INSERT INTO Dny(Dno,Eda,Hizuke,Deal,Kubun,Gaku,Nendo,Getudo) "
            "VALUES(%1,%2,CDATE('2011/%3/15'),%4,%2,%5,2011,%3)"_s,
            {number, kubun, month, deal, yen});
    }
    static QString slip(int number, int deal, int month, int yen) {
        return Filled(
            u"INSERT INTO Dud(Dno,Eda,Hizuke,Deal,HinCode,HinNamae,Gaku,Nendo,Getudo) "
            "VALUES(%1,1,CDATE('2011/%2/10'),%3,1,'ホース',%4,2011,%2)"_s,
            {number, month, deal, yen});
    }

    const ScratchStore store_;
};

TEST_F(ThreeMonths, ADifferenceIsToldWithWhyItArose) {
    const QString ofMarch = u" WHERE Deal=1 AND Nendo=2011 AND Getudo=3"_s;
    const QString ofFebruary = u" WHERE Deal=1 AND Nendo=2011 AND Getudo=2"_s;
    struct {
        const char* what;
        QString plant;
        QString told;
    } const cases[] = {
        {"nothing", QString(), QString()},
        {"a figure changed by itself", u"UPDATE TtoD SET GGaku=GGaku+1"_s + ofMarch,
         u"1 2011/3 GGaku 3000 3001 5|1 2011/3 Gaku 3001 3000 5"_s},
        {"a slip after the run", slip(2, 1, 3, 400), u"1 2011/3 UGaku 400 0 1"_s},
        {"a slip of an earlier month, which was billed again",
         slip(2, 1, 2, 400) + u";\nUPDATE TtoD SET UGaku=400,Gaku=3400"_s + ofFebruary,
         u"1 2011/3 ZenkaiGaku 400 0 1"_s},
        {"a payment for February entered after March was billed",
         payment(9, 1, 2, 3, 500) + u";\nUPDATE TtoD SET NGaku=3500"_s + ofFebruary,
         u"1 2011/3 ZenkaiGaku -500 0 2"_s},
        {"a debit read back beside another payment",
         payment(9, 1, 3, 2, 800) + u";\nUPDATE TtoD SET NGaku=800"_s + ofMarch,
         u"1 2011/3 NGaku 3800 800 3"_s},
        {"a reading deleted", u"DELETE FROM Dgd"_s + ofMarch, u"1 2011/3 GGaku 0 3000 4"_s},
        {"a balance set by hand over another", u"UPDATE TtoD SET ZenkaiGaku=7,SyokiFlg=1"_s + ofMarch,
         u"1 2011/3 ZenkaiGaku 0 7 0"_s},
        {"a row lost", u"DELETE FROM TtoD"_s + ofMarch, u"1 2011/3 行 1 0 1"_s},
        {"a month that nobody has billed yet",
         slip(2, 1, 4, 400) + u";\nINSERT INTO TtoD(Deal,Nendo,Getudo,ZenkaiGaku) VALUES(1,2011,4,77)"_s,
         QString()},
    };
    const QByteArray billed = admin::ContentsOf(store_.path());
    for (const auto& [what, plant, told] : cases) {
        plantInto(billed, plant);
        QStringList found;
        const LedgerProof proof = ProveLedger(*gDb);
        for (const auto& [d, cause] : proof.findings) {
            found += u"%1 %2/%3 %4 %5 %6 %7"_s.arg(d.deal)
                         .arg(d.month.nendo)
                         .arg(d.month.getudo)
                         .arg(d.column, AmountText(d.expected), AmountText(d.found))
                         .arg(static_cast<int>(cause));
        }
        EXPECT_EQ(found.join(u'|').toStdString(), told.toStdString()) << what;
        EXPECT_EQ(proof.months, 3);
        EXPECT_EQ(proof.openings, 1);
    }
}

TEST_F(ThreeMonths, WhatAPurgedMonthCarriedIsNotHeldAgainstTheNext) {
    purge(1, 1);
    purge(2, 1);
    const LedgerProof proof = ProveLedger(*gDb);
    EXPECT_TRUE(proof.findings.empty());
    EXPECT_EQ(proof.unproved, 1);
    EXPECT_EQ(proof.first, (BillingMonth{2011, 2}));
}

TEST_F(ThreeMonths, WhatOneCustomersPurgedMonthCarriedIsNoFaultUnlessItsDocumentsStand) {
    purge(2, 1);
    const LedgerProof proof = ProveLedger(*gDb);
    EXPECT_TRUE(proof.findings.empty());
    EXPECT_EQ(proof.purged, std::vector<std::int32_t>{2});
    ScratchStore::run(slip(2, 2, 1, 400));
    EXPECT_EQ(ProveLedger(*gDb).findings.size(), 2U) << "no row in January, and a balance";
}

/// The second customer leases both things, the first an ACU, in all the months; a finding is
/// "customer month fault line".
TEST_F(ThreeMonths, TheMonthsLeaseSlips) {
    ScratchStore::run(u"UPDATE Deal SET ACU=1;\nUPDATE Deal SET Keihou=1 WHERE Code=2"_s);
    for (int month = 1; month <= 3; ++month)
        BuildMonthLedger({2011, month}, DateSerial(2011, month + 1, 0));
    const QString alarm = u"警報機リース代"_s;
    const auto line = [](int slip, int row, const char16_t* name) {
        return u"INSERT INTO Dud(Dno,Eda,Deal,HinNamae,Gaku,Nendo,Getudo,CreateAuto) "
               "VALUES(%1,%2,1,'%3',400,2011,3,1)"_s.arg(slip)
                   .arg(row)
                   .arg(QString::fromUtf16(name));
    };
    const int march = ScratchStore::rows(u"SELECT Dno FROM Dud WHERE Deal=1 AND Getudo=3"_s)[0].toInt();
    const QString ended = u"UPDATE Deal SET ACU=0,Keihou=0"_s;
    struct {
        const char* what;
        QString plant;
        QString told;
    } const cases[] = {
        {"nothing", {}, {}},
        {"a line lost", u"DELETE FROM Dud WHERE Deal=2 AND Getudo=2 AND HinNamae='%1'"_s.arg(alarm),
         u"2 2 0 "_s + alarm},
        {"a slip lost", u"DELETE FROM Dud WHERE Deal=1 AND Getudo=3"_s, u"1 3 0 ACUリース代"_s},
        {"a lease begun behind the run", u"UPDATE Deal SET Keihou=1"_s, u"1 3 0 "_s + alarm},
        {"a slip lost before the end", ended + u";\nDELETE FROM Dud WHERE Deal=1 AND Getudo=2"_s,
         u"1 2 0 ACUリース代"_s},
        {"a line that nobody leases", line(march, 2, u"警報機リース代"), u"1 3 1 "_s + alarm},
        {"a line twice", line(march, 2, u"ACUリース代"), u"1 3 2 ACUリース代"_s},
        {"a second slip", line(900, 1, u"ACUリース代"), u"1 3 3 "_s},
        {"one number for both", u"UPDATE Dud SET Dno=900,Eda=Deal*10+Eda WHERE CreateAuto=1 AND Getudo=2"_s,
         u"1 2 4 |2 2 4 "_s},
        {"a line of goods", line(march, 2, u"ホース"), u"1 3 5 ホース"_s},
    };
    const QByteArray sound = admin::ContentsOf(store_.path());
    const auto findings = [] {
        QStringList found;
        for (const LeaseFinding& f : CheckLeases(*gDb, {}))
            found +=
                u"%1 %2 %3 %4"_s.arg(f.deal).arg(f.month.getudo).arg(static_cast<int>(f.fault)).arg(f.line);
        return found.join(u'|').toStdString();
    };
    for (const auto& [what, plant, told] : cases) {
        plantInto(sound, plant);
        EXPECT_EQ(findings(), told.toStdString()) << what;
    }
    ScratchStore::run(u"DELETE FROM Dud WHERE Deal=1 AND Getudo=3"_s);
    purge(2, 2);
    EXPECT_EQ(findings(), "1 3 0 ACUリース代") << "what is purged is not missing";
    EXPECT_TRUE(CheckLeases(*gDb, {2011, 4}).empty());
}

TEST_F(ThreeMonths, CheckTellsADealerAndAScript) {
    CloseDb();
    const QByteArray sound = admin::ContentsOf(store_.path());
    struct {
        QString plant;
        QString arguments;
        int code;
        const char* says;
    } const cases[] = {
        {QString(), {}, 0, "すべて合います"},
        {u"UPDATE TtoD SET UGaku=UGaku+1 WHERE Deal=2 AND Getudo=2"_s,
         {},
         1,
         "2011/02       2  川上  売上金額     700     701   1  不明"},
        {u"UPDATE TtoD SET UGaku=UGaku+1 WHERE Deal=2 AND Getudo=2"_s, u" --since 2011/4"_s, 0,
         "2011/04 から"},
        {u"UPDATE TtoD SET ZenkaiGaku=7,SyokiFlg=1 WHERE Deal=1 AND Getudo=3"_s, {}, 0, "繰越を手で決めた"},
        {u"DELETE FROM TtoD WHERE Deal=2 AND Getudo=1;\nDELETE FROM Dgd WHERE Deal=2 AND Getudo=1"_s,
         {},
         0,
         "はじめの月を消した得意先の、確かめられない繰越: 1 件（得意先 2）"},
        {u"UPDATE Deal SET ACU=1 WHERE Code=1"_s, {}, 1, "2011/03       1  山田        ACUリース代がない"},
        {u"UPDATE Dgd SET KonkaiMeter=0,Suu=0,Gaku=0 WHERE Deal=2 AND Getudo=3;\n"
         "UPDATE TtoD SET GGaku=0,Gaku=0 WHERE Deal=2 AND Getudo=3"_s,
         {},
         1,
         "読まないまま請求した（1 か月）"},
    };
    for (const auto& [plant, arguments, code, says] : cases) {
        plantInto(sound, plant);
        CloseDb();
        const QByteArray before = admin::ContentsOf(store_.path());
        const admin::Outcome outcome = admin::RunAdmin(u"check Akarix.MDB"_s + arguments);
        EXPECT_EQ(outcome.code, code) << says;
        EXPECT_THAT(outcome.said, HasSubstr(says));
        EXPECT_EQ(admin::ContentsOf(store_.path()), before) << "a check changes nothing";
    }
    plantInto(sound, {});
    CloseDb();
    const admin::Holder holder(store_.path());
    EXPECT_THAT(admin::RunAdmin(u"check"_s).said, HasSubstr("使用中です: sleep"));
}

TEST(Check, ADamagedFileIsToldPageByPage) {
    ScratchStore store;
    {
        const Action all;
        for (int i = 0; i < 3000; ++i)
            ScratchStore::run(u"INSERT INTO Zip7(Code,Addr) VALUES(%1,'緑川市本町')"_s.arg(1000000 + i));
    }
    ScratchStore::run(u"DELETE FROM Zip7"_s);
    CloseDb();
    const QByteArray sound = admin::ContentsOf(store.path());
    const int last = static_cast<int>(sound.size() / 4096);
    EXPECT_EQ(admin::RunAdmin(u"check"_s).code, 0) << "pages given back keep their seal";
    struct {
        std::function<void(const QString&)> damage;
        int code;
        std::string says;
    } const cases[] = {
        {[](const QString& path) { admin::BreakPage(path, 4); }, 2, "1 ページが壊れています（4）"},
        {[last](const QString& path) { admin::BreakPage(path, last); }, 1, std::to_string(last)},
        {[&sound](const QString& path) { admin::WriteFile(path, sound.left(sound.size() / 2 + 100)); }, 2,
         "終わりが切れています"},
        {[](const QString& path) { admin::WriteFile(path, {}); }, 2, "Akarix のデータベースではない"},
        {[](const QString& path) {
             QFile::remove(path);
             DBEngine::Workspaces(0).CreateDatabase(path, u"MS Access;PWD=other"_s)->Close();
         },
         2, "パスワード"},
        {[](const QString& path) { QFile::remove(path); }, 2, "ファイルがありません"},
    };
    for (const auto& [damage, code, says] : cases) {
        admin::WriteFile(store.path(), sound);
        damage(store.path());
        const admin::Outcome outcome = admin::RunAdmin(u"check"_s);
        EXPECT_EQ(outcome.code, code) << says;
        EXPECT_THAT(outcome.said, HasSubstr(says));
    }
}

TEST(Readings, OnesOutOfTheRowAreDoubted) {
    struct {
        const char* uses;  // m³, month after month
        const char* doubted;
    } const cases[] = {
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
                Filled(u"INSERT INTO Dgd(Nendo,Getudo,Deal,ZenkaiMeter,KonkaiMeter,Suu,Gaku) "
                       "VALUES(%1,%2,5,%3,%4,%5,2000)"_s,
                       {2010 + month / 12, month % 12 + 1, meter, meter + use.toInt(), use.toInt()}));
            meter += use.toInt();
            ++month;
        }
        QStringList found;
        for (const DoubtfulReading& reading : CheckReadings(*gDb, LastYearOfReadings(*gDb))) {
            found += Filled(u"%1:%2"_s, {(reading.month.nendo - 2010) * 12 + reading.month.getudo - 1,
                                         static_cast<int>(reading.doubt)});
        }
        EXPECT_EQ(found.join(u' ').toStdString(), doubted) << uses;
    }
}

/// A customer's months, "previous-present" each, "previous-present/old end/new start" with an exchange, "."
/// for a month without a row; all are billed but for one with a "?".
TEST(Readings, EachBeginsWhereTheLastOneEnded) {
    struct {
        const char* months;
        bool takesGas;
        const char* doubted;  // month:doubt:usual
    } const cases[] = {
        {"0-100 100-120 110-150", true, "2:5:120"},
        {"700-720", true, ""},  // nothing to hold it against
        {"0-100 100-12/150/0 12-30", true, ""},
        {"0-100 100-12/150/0 150-160", true, "2:5:12"},
        {"0-100 100-0/130/0 0-20", true, ""},          // exchanged, and nothing used since
        {"0-100 100-0 0-150", true, "1:6:1 2:5:100"},  // a month not read breaks the chain
        {"0-100 100-0 100-150", true, "1:6:1"},        // and somebody has mended it
        {"0-100 100-0 0-0 0-0", false, "1:6:1"},       // the meter is gone, or so it seems
        {"0-100 100-0?", true, ""},
        {"0-100 0-0?", true, "1:5:100"},  // shown before the month ahead was read
        {"0-0 0-0", false, ""},
        {"0-100 . . . . . . . . . . . . . . . . . . . . . . . . 90-120", true, "25:5:100"},
    };
    for (const auto& [months, takesGas, doubted] : cases) {
        const ScratchStore store;
        if (takesGas) ScratchStore::run(u"INSERT INTO Deal(Code,TankaPtn) VALUES(5,1)"_s);
        int month = -1;
        for (const QString& told : QString::fromLatin1(months).split(u' ')) {
            ++month;
            if (told == u".") continue;
            const QString date = Filled(u"%1,%2"_s, {2010 + month / 12, month % 12 + 1});
            if (!told.endsWith(u'?'))
                ScratchStore::run(u"INSERT INTO Syukei(Nen,Tuki) VALUES(%1)"_s.arg(date));
            const QStringList parts = told.chopped(told.endsWith(u'?') ? 1 : 0).split(u'/');
            const int before = parts[0].section(u'-', 0, 0).toInt();
            const int now = parts[0].section(u'-', 1).toInt();
            const int oldEnd = parts.value(1).toInt();
            const int use = oldEnd != 0 ? oldEnd - before + now : now != 0 ? now - before : 0;
            ScratchStore::run(
                Filled(u"INSERT INTO Dgd(Nendo,Getudo,Deal,ZenkaiMeter,KoukanMeter,KonkaiMeter,Suu,Gaku) "
                       "VALUES("_s +
                           date + u",5,%1,%2,%3,%4,%5)"_s,
                       {before, oldEnd, now, use, use != 0 ? 2000 : 0}));
        }
        QStringList found;
        for (const DoubtfulReading& reading : CheckReadings(*gDb, {2010 + month / 12 - 1, month % 12 + 1})) {
            found += u"%1:%2:%3"_s.arg((reading.month.nendo - 2010) * 12 + reading.month.getudo - 1)
                         .arg(static_cast<int>(reading.doubt))
                         .arg(AmountText(reading.usual));
        }
        EXPECT_EQ(found.join(u' ').toStdString(), doubted) << months;
    }
}

TEST(Readings, FiguresThatDoNotBelongTogetherAreDoubted) {
    const ScratchStore store;
    const auto doubts = [] {
        QStringList found;
        for (const DoubtfulReading& reading : CheckReadings(*gDb, {2011, 4}))
            found += Filled(u"%1:%2"_s, {reading.deal, static_cast<int>(reading.doubt)});
        return found.join(u' ');
    };
    const QString columns =
        u"INSERT INTO Dgd(Nendo,Getudo,Deal,ZenkaiMeter,KoukanMeter,KoukanGoMeter,KonkaiMeter,Suu,Gaku) "
        "VALUES(2011,4,"_s;
    ScratchStore::run(columns + u"1,900,950,0,12,62,9000)"_s);  // exchanged
    ScratchStore::run(columns + u"2,100,0,0,0,0,0)"_s);         // listed, not read
    EXPECT_EQ(doubts(), QString());
    ScratchStore::run(columns + u"3,100,0,0,120,20,0)"_s);
    ScratchStore::run(columns + u"4,100,0,0,120,21,9000)"_s);
    EXPECT_EQ(doubts(), u"3:1 4:2"_s);
}

}  // namespace
}  // namespace akarix
