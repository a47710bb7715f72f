#include "billing/Seikyu_frm.h"
#include "entry/SlipN2_frm.h"
#include "platform/runtime/Clock.h"
#include "platform/runtime/DateSerial.h"
#include "support/ListScreen.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

/// The bills of May 2023 go to the post office for 27 June; the disk is back on the 30th. All of it happens
/// at the billing screen.
class DebitRound : public ScreenTest {
 protected:
    enum { kAoki = 1, kInoue, kUeda, kEguchi, kOno, kKato, kCash, kKimura, kKudo };

    void SetUp() override {
        QDir().mkpath("Drive/A");
        gDb->Execute(
            "INSERT INTO Bnk(Code,ItakuCode,Itakusya,fName,BkName,Stn,KozaNo) "
            "VALUES(9900,'123','ｱｶﾘｸｽ','jiharai','ﾕｳｾｲ',1,'1')");
        // The 27th is past Inoue's closing day, is Kudo's, and in the month of the others.
        customer(kAoki, 31, 5000);
        customer(kInoue, 20, 3000);
        customer(kUeda, 31, 4500);
        customer(kEguchi, 31, 8000);
        customer(kOno, 31, 2000);
        customer(kKato, 31, 1500);
        customer(kCash, 31, 999);
        customer(kKimura, 31, 4000);
        customer(kKudo, 27, 700);
        ScratchStore::run(
            "UPDATE Deal SET DiscGaku=5000 WHERE Code=4;\n"
            "UPDATE Deal SET Koza='55555555' WHERE Code=5 OR Code=6;\n"
            "UPDATE Deal SET Bnk=0 WHERE Code=7;\n"
            "INSERT INTO Dgd(Nendo,Getudo,Deal,Gaku) VALUES(2023,6,1,6000);\n");
    }
    void TearDown() override {
        SetClock(Date());
        ScreenTest::TearDown();
    }

    static void customer(int code, int closingDay, int charge) {
        gDb->Execute(QString("INSERT INTO Deal(Code,Sime,Rte,Haisou,Bnk,Stn,Kind,Koza,DiscGaku) "
                             "VALUES(%1,%2,1,%1,9900,10010,1,'%1',0)")
                         .arg(code)
                         .arg(closingDay));
        gDb->Execute(
            QString("INSERT INTO Dgd(Nendo,Getudo,Deal,Gaku) VALUES(2023,5,%1,%2)").arg(code).arg(charge));
    }
    void openScreen(const QString& month, const QString& creation) {
        OpenScreen<Seikyu_frm>();
        for (const QString& text : {QString("2023"), month, creation}) {
            clerk.fill(text);
        }
    }
    void bill(const QString& month, const QString& creation) {
        openScreen(month, creation);
        clerk.answerAlert();
        clerk.click("Command(0)");
        EXPECT_EQ(clerk.lastSaid(), "集計しました。");
    }
    void enterPayment(const QString& date, int customer, const QString& amount) {
        OpenScreen<SlipN2_frm>();
        for (const QString& text :
             {QString(), QString::number(customer), date, QString(), amount, QString()}) {
            clerk.fill(text);
        }
        clerk.click("Btn(2)");
    }
    /// Gives the records of the file and what was said about it.
    QList<QByteArray> writeDisk(const QString& month, const QString& debitDay) {
        openScreen(month, debitDay);
        clerk.answerConfirm(true);
        AnswerEscape(clerk, "Printer_frm");
        clerk.answerAlert();
        clerk.answerAlert();
        clerk.click("Command(2)");
        QFile disk("Drive/A/jiharai");
        EXPECT_TRUE(disk.open(QFile::ReadOnly));
        return disk.readAll().split('\n');
    }
    QString readDisk() {
        clerk.bringToFront("Seikyu_frm");
        clerk.answerConfirm(true);
        clerk.answerConfirm(true);
        clerk.answerAlert();
        clerk.click("Command(4)");
        return clerk.lastSaid();
    }
    /// "customer amount" of each data record.
    static QStringList asked(const QList<QByteArray>& records) {
        QStringList lines;
        for (const QByteArray& record : records) {
            if (!record.startsWith('2')) continue;
            lines += QString("%1 %2").arg(record.mid(91, 20).toInt()).arg(record.mid(80, 10).toInt());
        }
        return lines;
    }
    /// The post office fills in the results, in the order of the records.
    static void markResults(QList<QByteArray> records, const char* results) {
        for (QByteArray& record : records) {
            if (record.startsWith('2')) record[111] = *results++;
        }
        QFile disk("Drive/A/jiharai");
        ASSERT_TRUE(disk.open(QFile::WriteOnly));
        disk.write(records.join('\n'));
    }
    /// Carried in, charge, paid; a line a customer.
    static QStringList ledger(int month) {
        return ScratchStore::rows(
            QString(
                "SELECT Deal,ZenkaiGaku,GGaku,NGaku FROM TtoD WHERE Nendo=2023 AND Getudo=%1 ORDER BY Deal")
                .arg(month));
    }

    ScratchStore store;
};

TEST_F(DebitRound, FromTheBillToTheNextMonthToTheYen) {
    SetClock(DateSerial(2023, 6, 5));
    bill("5", "5/31");
    const QList<QByteArray> request = writeDisk("5", "6/27");
    EXPECT_EQ(asked(request),
              (QStringList{"1 5000", "2 3000", "3 4500", "4 5000", "5 3500", "8 4000", "9 700"}));
    EXPECT_TRUE(clerk.said().contains("件数：7\n金額：25700"));
    const QStringList may = ledger(5);
    enterPayment("6/20", kKimura, "1000");

    // Ueda had no money in the account, and Kudo's result was left blank.
    SetClock(DateSerial(2023, 6, 30));
    markResults(request, "001000 ");
    EXPECT_EQ(readDisk(), "6 / 7 件　完了しました。");
    EXPECT_TRUE(clerk.said().contains("処理年=2023 月=6 は正しいですか？"));
    EXPECT_EQ(
        ScratchStore::rows("SELECT Deal,Gaku,Nendo,Getudo,Hizuke FROM Dny WHERE Kubun=2 ORDER BY Dno"),
        (QStringList{"1|5000|2023|6|2023/06/27", "2|3000|2023|7|2023/06/27", "4|5000|2023|6|2023/06/27",
                     "5|3500|2023|6|2023/06/27", "8|4000|2023|6|2023/06/27", "9|700|2023|6|2023/06/27"}));
    EXPECT_EQ(ScratchStore::rows("SELECT Bnk,Nendo,Getudo FROM FDLog"), QStringList{"9900|2023|6"});
    EXPECT_EQ(ledger(5), may) << "a payment belongs to the month it was made in";
    EXPECT_EQ(ledger(6), QStringList{"8|4000|0|4000"})
        << "the disk alone, in the place of 1,000 paid by hand";
    EXPECT_EQ(readDisk(), "このフロッピーは既に読み込み完了しています。");

    bill("6", "6/30");
    EXPECT_EQ(ledger(6), (QStringList{"1|5000|6000|5000", "2|3000|0|0",  // Inoue's payment counts in July
                                      "3|4500|0|0", "4|8000|0|5000",
                                      "5|2000|0|3500",  // paid for Kato too, whose debt stays
                                      "6|1500|0|0", "7|999|0|0",
                                      "8|4000|0|5000",  // 1,000 + 4,000
                                      "9|700|0|700"}));
    // What is still open is asked for again: Eguchi's rest of 3,000 is below the fixed amount.
    EXPECT_EQ(asked(writeDisk("6", "7/27")), (QStringList{"1 6000", "2 3000", "3 4500", "4 3000", "6 1500"}));
    bill("7", "7/31");
    EXPECT_EQ(ledger(7), (QStringList{"1|6000|0|0",     // 5,000+6,000-5,000
                                      "2|3000|0|3000",  //
                                      "3|4500|0|0",     //
                                      "4|3000|0|0",     // 8,000-5,000
                                      "5|-1500|0|0",    // 2,000-3,500
                                      "6|1500|0|0",     //
                                      "7|999|0|0",      //
                                      "8|-1000|0|0",    // 4,000-5,000
                                      "9|0|0|0"}));     // 700-700
}

}  // namespace
}  // namespace akarix
