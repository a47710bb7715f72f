#include "billing/Seikyu_frm.h"
#include "entry/SlipN2_frm.h"
#include "platform/runtime/Calendar.h"
#include "support/ListScreen.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

/// The bills of May 2023 go to the post office for 27 June; the disk is back on the 30th. All of it happens
/// at the billing screen.
class DebitRound : public ScreenTest {
 protected:
    void SetUp() override {
        QDir().mkpath("Drive/A");
        ScratchStore::run(
            "INSERT INTO Bnk(Code,ItakuCode,Itakusya,fName,BkName,Stn,KozaNo) "
            "VALUES(9900,'123','ｱｶﾘｸｽ','jiharai','ﾕｳｾｲ',1,'1')");
        // Closing day and charge by customer. The 27th is past the second one's closing day.
        const struct {
            int closingDay, charge;
        } customers[] = {{31, 5000}, {20, 3000}, {31, 8000}, {31, 2000}, {31, 1500}, {31, 4000}};
        int code = 0;
        for (const auto& [closingDay, charge] : customers) {
            ++code;
            ScratchStore::run(QString("INSERT INTO Deal(Code,Sime,Haisou,Bnk,Stn,Kind,Koza,DiscGaku) "
                                      "VALUES(%1,%2,%1,9900,10010,1,'%1',0);\n"
                                      "INSERT INTO Dgd(Nendo,Getudo,Deal,Gaku) VALUES(2023,5,%1,%3)")
                                  .arg(code)
                                  .arg(closingDay)
                                  .arg(charge));
        }
        ScratchStore::run(
            "UPDATE Deal SET DiscGaku=5000 WHERE Code=3;\n"
            "UPDATE Deal SET Koza='55555555' WHERE Code=4 OR Code=5");
    }

    template <typename Screen>
    void open(const QStringList& texts) {
        OpenScreen<Screen>();
        for (const QString& text : texts)
            clerk.fill(text);
    }
    /// Gives the ledger afterwards: customer, carried in, charge, paid.
    QStringList bill(const QString& month, const QString& creation) {
        open<Seikyu_frm>({"2023", month, creation});
        clerk.answerAlert();
        clerk.click("Command(0)");
        EXPECT_EQ(clerk.lastSaid(), "集計しました。");
        return ledger(month);
    }
    static QStringList ledger(const QString& month) {
        return ScratchStore::rows(
            "SELECT Deal,ZenkaiGaku,GGaku,NGaku FROM TtoD WHERE Nendo=2023 AND Getudo=" + month +
            " ORDER BY Deal");
    }
    /// Gives "customer amount" of each data record.
    QStringList writeDisk(const QString& month, const QString& debitDay) {
        open<Seikyu_frm>({"2023", month, debitDay});
        clerk.answerConfirm(true);
        AnswerEscape(clerk, "Printer_frm");
        clerk.answerAlert();
        clerk.answerAlert();
        clerk.click("Command(2)");
        QFile disk("Drive/A/jiharai");
        EXPECT_TRUE(disk.open(QFile::ReadOnly));
        QStringList lines;
        for (const QByteArray& record : disk.readAll().split('\n'))
            if (record.startsWith('2'))
                lines += QString("%1 %2").arg(record.mid(91, 20).toInt()).arg(record.mid(80, 10).toInt());
        return lines;
    }
    QString readDisk() {
        clerk.bringToFront("Seikyu_frm");
        clerk.answerConfirm(true);
        clerk.answerConfirm(true);
        clerk.answerAlert();
        clerk.click("Command(4)");
        return clerk.lastSaid();
    }

    ScratchStore store;
};

TEST_F(DebitRound, FromTheBillToTheNextMonthToTheYen) {
    SetClock(DateSerial(2023, 6, 5));
    const QStringList may = bill("5", "5/31");
    EXPECT_EQ(writeDisk("5", "6/27"), (QStringList{"1 5000", "2 3000", "3 5000", "4 3500", "6 4000"}));
    EXPECT_TRUE(clerk.said().contains("件数：5\n金額：20500"));
    open<SlipN2_frm>({"", "6", "6/20", "", "1000", ""});
    clerk.click("Btn(2)");

    SetClock(DateSerial(2023, 6, 30));
    QFile disk("Drive/A/jiharai");
    ASSERT_TRUE(disk.open(QFile::ReadWrite));
    disk.seek(122 + 111);
    disk.write("1");  // the first customer had no money in the account
    disk.close();
    EXPECT_EQ(readDisk(), "4 / 5 件　完了しました。");
    EXPECT_EQ(ledger("5"), may) << "a payment belongs to the month it was made in";
    EXPECT_EQ(ledger("6"), QStringList{"6|4000|0|4000"})
        << "the disk alone, in the place of 1,000 paid by hand";
    EXPECT_EQ(readDisk(), "このフロッピーは既に読み込み完了しています。");

    EXPECT_EQ(bill("6", "6/30"), (QStringList{"1|5000|0|0", "2|3000|0|0",  // the second one's counts in July
                                              "3|8000|0|5000",
                                              "4|2000|0|3500",  // paid for the next one too, whose debt stays
                                              "5|1500|0|0", "6|4000|0|5000"}));  // 1,000 + 4,000
    // What is still open is asked for again: the third one's rest of 3,000 is below the fixed amount.
    EXPECT_EQ(writeDisk("6", "7/27"), (QStringList{"1 5000", "2 3000", "3 3000", "5 1500"}));
    EXPECT_EQ(bill("7", "7/31").mid(1, 3), (QStringList{"2|3000|0|3000", "3|3000|0|0", "4|-1500|0|0"}));
}

}  // namespace
}  // namespace akarix
