#include <gmock/gmock.h>

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "month/Failure.h"
#include "month/MonthCheck.h"
#include "month/TypedMonth.h"
#include "platform/print/PdfText.h"
#include "platform/runtime/Literals.h"
#include "sample/OpenStore.h"
#include "store/dbAccess.h"
#include "support/ScratchStore.h"
#include "tools/AdminRun.h"

namespace akarix::month {
namespace {

using testing::HasSubstr;

struct Outcome {
    int exitCode = -1;
    QString said;
};

/// Runs the program as it is built.
Outcome RunProgram(const QStringList& arguments) {
    QProcess program;
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(QStringLiteral(AKARIX_MONTH_PROGRAM), arguments);
    constexpr int patience = 120000;
    if (!program.waitForFinished(patience)) program.kill();
    return {program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1,
            QString::fromUtf8(program.readAll())};
}

/// One played month of a small dealer, for all tests that look at what it leaves. Five of his customers pay
/// through the post office, and number 41 is keyed in on the way.
class PlayedMonth : public testing::Test {
 protected:
    static void SetUpTestSuite() {
        folder_ = new QTemporaryDir;
        run_ = RunProgram({u"--customers"_s, u"40"_s, u"--month"_s, u"2011/4"_s, u"--out"_s, path({})});
    }
    static void TearDownTestSuite() { delete folder_; }
    void SetUp() override { ASSERT_EQ(run_.exitCode, 0) << run_.said.toStdString(); }

    static QString path(const QString& name) { return folder_->filePath(u"month/"_s + name); }
    static QString database() { return path(u"dealer/"_s + DatabaseName()); }
    /// A figure of the summary without its commas.
    static QString figure(const QString& label) {
        QFile file(path(u"summary.txt"_s));
        EXPECT_TRUE(file.open(QFile::ReadOnly));
        const QRegularExpression line(u"^%1 +([-0-9,.]+) "_s.arg(label), QRegularExpression::MultilineOption);
        return line.match(QString::fromUtf8(file.readAll())).captured(1).remove(u',');
    }
    static DocumentNotes documents(const QString& question) {
        DocumentNotes notes;
        for (const QString& row : ScratchStore::rows(question)) {
            const QStringList cells = row.split(u'|');
            notes[cells[0].toInt()] = {cells[1].toInt(), cells[2].toLongLong(), cells[3] != u"4"};
        }
        return notes;
    }
    static QString stored(const QString& question) { return ScratchStore::rows(question).value(0); }

    static inline QTemporaryDir* folder_ = nullptr;
    static inline Outcome run_;
};

TEST_F(PlayedMonth, SummaryTellsWhatTheStoreHolds) {
    const sample::OpenStore store(database());
    EXPECT_EQ(figure(u"得意先"_s), u"41"_s) << "forty, and the one keyed in on the way";
    EXPECT_EQ(figure(u"次月繰越"_s),
              stored(u"SELECT SUM(ZenkaiGaku+Gaku-NGaku) FROM TtoD WHERE Nendo=2011 AND Getudo=4"_s));
    for (const char16_t* hardCase :
         {u"締日後の入金", u"過入金の残高", u"マイナスの使用量", u"円未満のある料金", u"円未満のある売上",
          u"二頁以上の請求書", u"請求後の売上伝票", u"終わったリース", u"検査で戻った依頼"}) {
        EXPECT_GE(figure(QString::fromUtf16(hardCase)).toInt(), 1)
            << QString::fromUtf16(hardCase).toStdString();
    }
    EXPECT_GT(figure(u"使用量"_s).toDouble(), 12.0);
    const auto documents = [](const QString& table) {
        return ScratchStore::rows(u"SELECT Dno FROM "_s + table +
                                  u" WHERE Nendo=2011 AND Getudo=4 GROUP BY Dno"_s)
            .size();
    };
    EXPECT_EQ(figure(u"売上伝票"_s).toInt(), documents(u"Dud"_s));
    EXPECT_EQ(figure(u"入金伝票"_s).toInt(), documents(u"Dny"_s));
    EXPECT_GT(documents(u"Dny"_s), 5);
}

TEST_F(PlayedMonth, TheListIsPrinted) {
    QString text = PdfPages(path(u"billing-list.pdf"_s)).join(QString());
    EXPECT_THAT(text.toStdString(), HasSubstr("平成23年4月"));
    EXPECT_THAT(text.toStdString(), HasSubstr("花子"));
    EXPECT_THAT(text.remove(u',').toStdString(), HasSubstr(figure(u"ガス料金"_s).toStdString()));
    EXPECT_TRUE(QFile::exists(path(u"billing-list.xlsx"_s)));
    EXPECT_TRUE(QFile::exists(path(u"account.xlsx"_s)));
}

// In the order of the round; what does not fit on eight lines goes on to a page without the sum.
TEST_F(PlayedMonth, EachBillIsAnInvoice) {
    const sample::OpenStore store(database());
    QStringList pages = PdfPages(path(u"invoices.pdf"_s));
    EXPECT_EQ(figure(u"請求書"_s).toInt(), pages.size());
    for (const QString& bill : ScratchStore::rows(
             u"SELECT Code,Namae,ZenkaiGaku-NGaku+UGaku+Gaku FROM TtoD INNER JOIN Deal ON "
             u"TtoD.Deal=Deal.Code "
             "WHERE Nendo=2011 AND Getudo=4 AND NoSeikyu=0 AND ZenkaiGaku+Gaku-NGaku<>0 ORDER BY "
             "Rte,Haisou,Code"_s)) {
        const QStringList cells = bill.split(u'|');
        const std::string name = (QString(cells[1]).remove(u'\u3000') + u"様"_s).toStdString();
        const std::string sum =
            (u"¥"_s + QLocale(QLocale::English).toString(std::abs(cells[2].toLongLong()))).toStdString();
        const int slipLines =
            stored(u"SELECT COUNT(*) FROM Dud WHERE Nendo=2011 AND Getudo=4 AND Deal="_s + cells[0]).toInt();
        for (int page = 0; page <= slipLines / 8; ++page) {
            ASSERT_FALSE(pages.empty()) << name;
            const std::string text = pages.takeFirst().remove(u'\u3000').toStdString();
            EXPECT_THAT(text, HasSubstr(name));
            EXPECT_EQ(text.find(sum) != std::string::npos, page == 0) << name << sum;
            EXPECT_EQ(text.find("当月ガス料金") != std::string::npos, page == slipLines / 8) << name;
        }
    }
    EXPECT_TRUE(pages.empty());
    const QStringList drawn = PdfPages(path(u"script.pdf"_s));
    ASSERT_EQ(drawn.size(), 1);
    EXPECT_THAT(drawn[0].toStdString(), HasSubstr("緑川市"));
    EXPECT_EQ(drawn[0].count(u"○"_s), 8) << "the end of the layout";
}

TEST_F(PlayedMonth, TheDebitDiskGoesOutAndComesBack) {
    const DebitClaims asked = ReadDebitFile(path(u"debit/jiharai-request"_s));
    DebitClaims back = ReadDebitFile(path(u"debit/jiharai"_s));
    EXPECT_EQ(asked.size(), 5u);
    const DebitFigures figures = TotalsOf(back);
    EXPECT_EQ(figures.debited, 4);
    EXPECT_LT(figures.debitedYen, figures.askedYen);
    for (DebitClaim& claim : back)
        claim.debited = true;
    EXPECT_EQ(asked, back) << "what is not yet marked counts as debited";
    const sample::OpenStore store(database());
    EXPECT_EQ(
        asked.front().yen,
        stored(u"SELECT ZenkaiGaku+Gaku-NGaku FROM TtoD WHERE Nendo=2011 AND Getudo=3 AND Deal=%1"_s.arg(
                   asked.front().deal))
            .toLongLong());
    const auto printed = [](const QString& name) {
        return PdfPages(path(u"debit/"_s + name)).join(QString()).remove(u',').toStdString();
    };
    const std::string sum = QString::number(figures.askedYen).toStdString();
    EXPECT_THAT(printed(u"post-statement.pdf"_s), HasSubstr(sum));
    EXPECT_THAT(printed(u"total-sheet.pdf"_s), HasSubstr(sum));
    EXPECT_THAT(printed(u"total-sheet.pdf"_s), HasSubstr("2011/05/15"));
    EXPECT_THAT(printed(u"bank-statement.pdf"_s), HasSubstr("平成23年3月分"));
}

TEST_F(PlayedMonth, EveryScreenIsPictured) {
    const QStringList pictures = QDir(path(u"screens"_s)).entryList(QDir::Files, QDir::Name);
    const QString names =
        u"splash login menu tariff calculator route customer-lookup customer confirmation "
        "goods-lookup goods new-goods settings lease-fees bank-consignor post-consignor "
        "retransfer debit-result reading-sheet slip payment billing message billing-list "
        "printer preview invoices account account-slip opening-balances slip-lookup "
        "payment-lookup bank-lookup error backup-place backup"_s;
    for (const QString& name : names.split(u' ')) {
        const QStringList found = pictures.filter(QRegularExpression(u"^[0-9]{2}-%1\\.png$"_s.arg(name)));
        ASSERT_EQ(found.size(), 1) << name.toStdString();
        EXPECT_FALSE(QImage(path(u"screens/"_s + found[0])).isNull());
    }
    EXPECT_EQ(pictures.front(), u"01-splash.png"_s);
}

// Each fault is planted into a ledger that was right, and must be the only thing told.
TEST_F(PlayedMonth, AFaultOfOneYenIsTold) {
    std::optional<sample::OpenStore> store(database());
    TypedMonth typed;
    for (const QString& row : ScratchStore::rows(
             u"SELECT Deal,KoukanMeter,KoukanGoMeter,KonkaiMeter FROM Dgd WHERE Nendo=2011 AND Getudo=4 "
             "AND KonkaiMeter>0"_s)) {
        const QStringList cells = row.split(u'|');
        const auto tenths = [&cells](int i) { return qRound(cells[i].toDouble() * 10); };
        typed.readings[cells[0].toInt()] = {tenths(1), tenths(2), tenths(3)};
    }
    // The dealer's own documents end with March.
    typed.slips = documents(
        u"SELECT Dno,Deal,SUM(Gaku),Getudo FROM Dud WHERE CreateAuto=0 AND Hizuke>=#2011/04/01# GROUP BY "
        "Dno,Deal,Getudo"_s);
    typed.payments = documents(
        u"SELECT Dno,Deal,SUM(Gaku),Getudo FROM Dny WHERE Hizuke>=#2011/04/01# GROUP BY Dno,Deal,Getudo"_s);
    typed.alarmFee = 305;
    typed.acuFee = 1220;
    const QString lessee =
        stored(u"SELECT Deal FROM Dud WHERE CreateAuto=1 AND Nendo=2011 AND Getudo=4 ORDER BY Deal"_s);
    const QString latePayer = stored(u"SELECT Deal FROM Dny WHERE Nendo=2011 AND Getudo=5 ORDER BY Deal"_s);
    typed.debits = ReadDebitFile(path(u"debit/jiharai"_s));
    const std::int32_t slip = typed.slips.begin()->first;
    const std::int32_t payment = typed.payments.begin()->first;
    const auto told = [&typed] {
        try {
            CheckMonth(*gDb, 2011, 4, typed);
            return QString();
        } catch (const Failure& failure) {
            return failure.text();
        }
    };
    ASSERT_EQ(told().toStdString(), std::string());
    struct {
        const char16_t* plant;
        const char16_t* tells;
        int places = 1;
    } const cases[] = {
        {u"UPDATE TtoD SET NGaku=NGaku+1 WHERE Deal=3 AND Nendo=2011 AND Getudo=3",
         u"得意先 3 2011/4 ZenkaiGaku", 2},  // and March's own
        {u"UPDATE TtoD SET Gaku=Gaku-1 WHERE Deal=4 AND Nendo=2011 AND Getudo=4", u"得意先 4 2011/4 Gaku"},
        {u"UPDATE GasKeisan SET Kihon=Kihon+1 WHERE Ptn=6", u"得意先 41 2011/4 Gaku"},
        {u"UPDATE Dgd SET KoukanGoMeter=1 WHERE Deal=41", u"得意先 41: 入力した検針値と違います。"},
        {u"UPDATE Dud SET Gaku=Gaku+1 WHERE Eda=1 AND Dno=%1", u"売上伝票 %1: 入力した内容と違います。",
         2},  // and the ledger's sales
        {u"UPDATE Dny SET Kubun=1 WHERE Deal=%3 AND Getudo=4", u"得意先 %3: 口座振替"},
        {u"UPDATE TtoD SET NGaku=NGaku+1 WHERE Deal=%3 AND Nendo=2011 AND Getudo=4", u"得意先 %3: 口座振替",
         2},  // and the ledger's payments
        {u"UPDATE Dud SET Gaku=Gaku+1 WHERE Deal=%4 AND CreateAuto=1 AND Nendo=2011 AND Getudo=4",
         u"得意先 %4: リース伝票が違います。", 2},  // and the ledger's sales
        {u"UPDATE Deal SET ACU=1-ACU WHERE Code=%4", u"得意先 %4: リース伝票が違います。"},
        {u"UPDATE TtoD SET NGaku=NGaku+1 WHERE Deal=%5 AND Nendo=2011 AND Getudo=5",
         u"得意先 %5 2011/5 NGaku"},
        {u"UPDATE FDLog SET Getudo=5", u"ディスクの記録が 0 件"},
        {u"UPDATE Dny SET Dno=99999 WHERE Dno=%2",
         u"入金 %2: 入力した伝票がありません。\n入金 99999: 入力していない伝票です。", 2},
    };
    const auto named = [&](const char16_t* text) {
        return QString::fromUtf16(text)
            .replace(u"%1"_s, QString::number(slip))
            .replace(u"%2"_s, QString::number(payment))
            .replace(u"%3"_s, QString::number(typed.debits.front().deal))
            .replace(u"%4"_s, lessee)
            .replace(u"%5"_s, latePayer);
    };
    store.reset();
    const QByteArray sound = admin::ContentsOf(database());
    for (const auto& [plant, tells, places] : cases) {
        store.emplace(database());
        gDb->Execute(named(plant));
        EXPECT_THAT(told().toStdString(), HasSubstr(named(tells).toStdString()));
        EXPECT_THAT(told().toStdString(), HasSubstr(u"（%1 か所）"_s.arg(places).toStdString()));
        store.reset();
        admin::WriteFile(database(), sound);
    }
}

TEST(MonthProgram, ARunThatGoesWrongEndsWithAWord) {
    const QTemporaryDir folder;
    const QString templates = folder.filePath(u"Prt"_s);
    const QString taken = folder.filePath(u"taken"_s);
    const QString list = u"/取引先一覧.xlsx"_s;
    QDir().mkpath(templates);
    QDir().mkpath(taken);
    ASSERT_TRUE(QFile::copy(QStringLiteral(AKARIX_SOURCE_DIR "/Prt") + list, templates + list));
    ASSERT_TRUE(QFile::copy(templates + list, taken + list));
    const QString busy = folder.filePath(u"busy"_s);
    QDir().mkpath(busy + u"/dealer"_s);
    ASSERT_TRUE(QFile(busy + u"/.akarix-month"_s).open(QFile::WriteOnly));
    QFile inUse(busy + u"/dealer/"_s + DatabaseName());
    ASSERT_TRUE(inUse.open(QFile::WriteOnly));
    struct {
        QStringList arguments;
        int exitCode;
        const char* says;
    } const cases[] = {
        {{u"--frobnicate"_s}, 2, "使い方"},
        {{u"--customers"_s, u"0"_s}, 2, "使い方"},
        {{u"--month"_s, u"1999/12"_s}, 2, "使い方"},
        {{u"--month"_s, u"2011/13"_s}, 2, "使い方"},
        {{u"--scale"_s, u"0"_s}, 2, "使い方"},
        {{u"--help"_s}, 0, "使い方"},
        {{u"--out"_s, taken}, 1, "他のものがあります"},
        {{u"--out"_s, busy}, 1, "使用中です: test_tools"},
        // The list cannot be printed, which the program tells in a box that the road does not expect.
        {{u"--customers"_s, u"2"_s, u"--out"_s, folder.filePath(u"out"_s), u"--templates"_s, templates},
         1,
         "一覧表の印刷: 思わぬ画面が出ました: 1004"},
    };
    for (const auto& [arguments, exitCode, says] : cases) {
        const Outcome run = RunProgram(arguments);
        EXPECT_EQ(run.exitCode, exitCode) << arguments.join(u' ').toStdString();
        EXPECT_THAT(run.said.toStdString(), HasSubstr(says));
    }
    EXPECT_TRUE(QFile::exists(taken + list)) << "what was in the folder is left alone";
    EXPECT_TRUE(inUse.exists());
}

}  // namespace
}  // namespace akarix::month
