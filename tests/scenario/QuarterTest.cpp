#include "billing/Seikyu_frm.h"
#include "entry/SlipG_frm.h"
#include "entry/SlipN2_frm.h"
#include "entry/Slip_frm.h"
#include "platform/forms/FlexGrid.h"
#include "platform/runtime/Calendar.h"
#include "reports/RepoDaichou_frm.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

/// A line of a sales slip as it is typed; what is empty is passed over with Enter.
struct SlipLine {
    const char* code;
    const char* name;
    const char* suu;
    const char* tanka;
    const char* gaku;
};

/// April to June 2023 of a dealer with five customers, typed at the screens. Aoki and Ueda close on the 20th,
/// the others at the month's end. Ueda leases an ACU for 500 yen and an alarm for 300 yen a month.
///
/// Tariff 1: up to 5.0 m3 1,800 yen, up to 20.0 480.5 yen a m3 above 5, then 9,007 yen and 420 above 20.
/// Tariff 2: 1,500 yen and 333.3 a m3. Tariff 3: up to 8.0 2,000 yen, then 520 a m3 above 8.
/// The part by the m3 loses its fraction.
class Quarter : public ScreenTest {
 protected:
    enum { kAoki = 1, kInoue, kUeda, kEguchi, kOno };

    void SetUp() override {
        SetClock(DateSerial(2023, 7, 1));
        ScratchStore::run(
            "INSERT INTO Deal(Code,Namae,Sime,TankaPtn,Rte,Haisou) VALUES(1,'青木',20,1,1,10),"
            "(2,'井上',31,2,1,20);\n"
            "INSERT INTO Deal(Code,Namae,Sime,TankaPtn,Rte,Haisou,ACU,Keihou) "
            "VALUES(3,'上田',20,1,1,30,1,1);\n"
            "INSERT INTO Deal(Code,Namae,Sime,TankaPtn,Rte,Haisou) VALUES(4,'江口',31,3,1,40),"
            "(5,'大野',31,2,1,50);\n"
            "DELETE FROM GasKeisan;\n"
            "INSERT INTO GasKeisan(Ptn,St,Ed,Kihon,Tanka) VALUES(1,0,5,1800,0),(1,5,20,1800,480.5),"
            "(1,20,999,9007,420),(2,0,999,1500,333.3),(3,0,8,2000,0),(3,8,30,2000,520);\n"
            "INSERT INTO Hin(Code,Namae,Tanka) VALUES(1,'ホース',1990),(2,'ボンベ',5990);\n"
            "DELETE FROM UserOP WHERE Code=2 OR Code=3;\n"
            "INSERT INTO UserOP(Code,contents) VALUES(2,'300'),(3,'500円');\n"
            "INSERT INTO Dgd(Nendo,Getudo,Deal,KonkaiMeter) VALUES(2023,3,1,100),(2023,3,2,250.5),"
            "(2023,3,3,1000),(2023,3,4,80);\n");
    }

    // ---- the hands

    void fillAll(const QStringList& texts) {
        for (const QString& text : texts)
            clerk.fill(text);
    }
    void typeCell(int row, int col, const QString& text) {
        clerk.clickCell(clerk.find<FlexGrid>("List"), row, col);
        clerk.fill(text);
    }
    void openReadings(int month) {
        OpenScreen<SlipG_frm>();
        fillAll({"2023", QString::number(month), "25", "", ""});
        clerk.enter();
        ASSERT_EQ(clerk.find<FlexGrid>("List").Rows(), 6);
    }
    void enterSlip(const QString& date, int customer, std::initializer_list<SlipLine> lines) {
        OpenScreen<Slip_frm>();
        fillAll({"", date, QString::number(customer)});
        for (const SlipLine& line : lines)
            fillAll({line.code, line.name, line.suu, line.tanka, line.gaku});
        clerk.click("Btn(2)");
    }
    void enterPayment(const QString& date, int customer, const QStringList& amounts) {
        OpenScreen<SlipN2_frm>();
        fillAll({"", QString::number(customer), date});
        for (const QString& amount : amounts)
            fillAll({"", amount, ""});
        clerk.click("Btn(2)");
    }
    void enterOpening(int customer, int month, const QString& amount) {
        OpenScreen<SlipN2_frm>();
        fillAll({"", QString::number(customer)});
        clerk.find<TextBox>("ebox(4)").setFocus();
        fillAll({"2023", QString::number(month), amount});
        clerk.click("Btn(3)");
    }
    void bill(int month, const QString& creation) {
        OpenScreen<Seikyu_frm>();
        fillAll({"2023", QString::number(month), creation});
        clerk.answerAlert();
        clerk.click("Command(0)");
        EXPECT_EQ(clerk.lastSaid(), "集計しました。");
    }

    // ---- the eyes

    /// ZenkaiGaku, GGaku, UGaku, NGaku and Gaku of a month, a line a customer.
    static QStringList ledger(int month) {
        return ScratchStore::rows(
            QString("SELECT Deal,ZenkaiGaku,GGaku,UGaku,NGaku,Gaku FROM TtoD WHERE Nendo=2023 "
                    "AND Getudo=%1 ORDER BY Deal")
                .arg(month));
    }
    /// The lines of the customer ledger screen: number, date, name, meter, amount, paid, balance.
    QStringList account(int customer, int month) {
        OpenScreen<RepoDaichou_frm>();
        fillAll({"2023", QString::number(month), QString::number(customer)});
        const auto& list = clerk.find<FlexGrid>("List");
        QStringList lines;
        for (int row = 1; row < list.Rows(); ++row) {
            QStringList cells;
            for (const int col : {0, 1, 2, 3, 6, 7, 8})
                cells += list.TextMatrix(row, col);
            lines += cells.join(u'|');
        }
        return lines;
    }

    // ---- the months

    void workApril() {
        enterOpening(kInoue, 4, "12345");
        openReadings(4);
        fillAll({"112.3", "262.8", "1025", "88"});  // Ono is not read yet
        clerk.click("Btn(2)");
        enterSlip("4/20", kAoki, {{"1", "", "1", "", ""}, {"", "消費税", "", "", "*5"}});
        enterSlip("4/21", kAoki, {{"2", "", "2", "", ""}});
        enterSlip("4/30", kInoue, {{"", "工事", "", "", "15000"}});
        enterPayment("4/25", kAoki, {"4000", "1000"});
        enterPayment("4/28", kInoue, {"10000"});
        bill(4, "4/30");
        enterPayment("4/30", kEguchi, {"2000"});
    }
    void workMay() {
        openReadings(5);
        // Inoue's meter was exchanged at 270.0 for one that stood at 0.
        typeCell(2, 3, "270");
        clerk.clickCell(clerk.find<FlexGrid>("List"), 1, 5);
        fillAll({"117.3", "5.4", "1045", "96.1", "30.5"});
        clerk.click("Btn(2)");
        enterSlip("5/31", kInoue, {{"", "部品", "1.5", "99", ""}});
        enterSlip("5/21", kUeda, {{"", "点検", "", "", "3000"}, {"", "消費税", "", "", "*10"}});
        enterPayment("5/10", kInoue, {"22944"});
        enterPayment("5/15", kUeda, {"11907"});
        bill(5, "5/31");
    }
    void workJune() {
        openReadings(6);
        fillAll({"117.2", "15.4", "1065.5", "96.1", "40.7"});
        typeCell(1, 7, "1800");  // Aoki's reading fell back; the basic charge is set by hand
        clerk.click("Btn(2)");
        enterSlip("6/15", kEguchi, {{"", "返品", "-1.5", "99", ""}});
        enterPayment("6/5", kOno, {"5000"});
        enterPayment("6/10", kInoue, {"5847"});
        enterPayment("6/20", kAoki, {"10000"});
        bill(6, "6/30");
        enterPayment("6/21", kUeda, {"9807"});
    }

    ScratchStore store;
};

TEST_F(Quarter, TheLedgerComesOutToTheYen) {
    workApril();
    // 12,345 carried over by hand; 12.3 m3: 1,500 + 12.3*333.3=4,099.59
    EXPECT_EQ(ledger(4)[1], "2|12345|5599|15000|10000|20599");
    // Paid after the 20th: Aoki's May exists before it is billed. April was not billed yet at that moment.
    EXPECT_EQ(ledger(5), QStringList{"1|0|0|0|5000|0"});

    workMay();
    const QStringList may = ledger(5);
    EXPECT_EQ(may[1], "2|22944|5699|148|22944|5847");  // 12,345+5,599+15,000-10,000
    EXPECT_EQ(ledger(6), QStringList()) << "a slip alone opens no month";

    // A slip comes late; the first month is billed again, the second one not.
    enterSlip("4/10", kEguchi, {{"", "配管", "1", "2500", ""}});
    bill(4, "4/30");
    EXPECT_EQ(ledger(4)[3], "4|0|2000|2500|2000|4500");
    EXPECT_EQ(ledger(5), may) << "a month after the one billed again keeps what was carried into it";

    workJune();
    EXPECT_EQ(ledger(6)[0], "1|16176|1800|0|10000|1800");  // -0.1 m3 is in no band: as typed
    EXPECT_EQ(ledger(6)[3], "4|2052|2000|-148|0|1852");    // 0+2,052: the late slip is missing

    // Billed again in their order, the months after it carry the late slip along and nothing else changes.
    bill(5, "5/31");
    bill(6, "6/30");
    QStringList mayAgain = may;
    mayAgain[3] = "4|2500|2052|0|0|2052";  // 2,000+2,500-2,000
    EXPECT_EQ(ledger(5), mayAgain);
    EXPECT_EQ(ledger(6)[3], "4|4552|2000|-148|0|1852");  // 2,500+2,052
}

TEST_F(Quarter, TheAccountsComeOutToTheYen) {
    workApril();
    workMay();
    enterSlip("4/10", kEguchi, {{"", "配管", "1", "2500", ""}});
    bill(4, "4/30");
    workJune();

    EXPECT_EQ(account(kAoki, 4), (QStringList{
                                     "||||||0", "|2023/4|LPガス|112.3|5,307||5,307",
                                     "1|2023/04/20|ホース||1,990||7,297",    // 5,307+1,990
                                     "1|2023/04/20|消費税||99||7,396",       // 7,297+99
                                     "|2023/5|LPガス|117.3|1,800||9,196",    // 7,396+1,800
                                     "2|2023/04/21|ボンベ||11,980||21,176",  // 9,196+11,980
                                     "1|2023/05|入金|||5,000|16,176",        // 4,000+1,000; 21,176-5,000
                                     "|2023/6|LPガス|117.2|1,800||17,976",   // 16,176+1,800
                                     "8|2023/06|入金|||10,000|7,976",        // 17,976-10,000
                                 }));
    // From May on: what was carried over by hand in April has come in with April's balance.
    EXPECT_EQ(account(kInoue, 5), (QStringList{
                                      "||||||22,944",                       // 12,345+5,599+15,000-10,000
                                      "|2023/5|LPガス|5.4|5,699||28,643",   // 22,944+5,699
                                      "5|2023/05/31|部品||148||28,791",     // 28,643+148
                                      "4|2023/05|入金|||22,944|5,847",      // 28,791-22,944
                                      "|2023/6|LPガス|15.4|4,833||10,680",  // 5,847+4,833
                                      "7|2023/06|入金|||5,847|4,833",       // 10,680-5,847
                                  }));
    EXPECT_EQ(account(kUeda, 5), (QStringList{
                                     "||||||11,907",                               // 11,107+800
                                     "|2023/5|LPガス|1,045.0|9,007||20,914",       // 11,907+9,007
                                     "7|2023/05/31|ACUリース代||500||21,414",      // 20,914+500
                                     "7|2023/05/31|警報機リース代||300||21,714",   // 21,414+300
                                     "5|2023/05|入金|||11,907|9,807",              // 21,714-11,907
                                     "|2023/6|LPガス|1,065.5|9,217||19,024",       // 9,807+9,217
                                     "6|2023/05/21|点検||3,000||22,024",           // 19,024+3,000
                                     "6|2023/05/21|消費税||300||22,324",           // 22,024+300
                                     "10|2023/06/30|ACUリース代||500||22,824",     // 22,324+500
                                     "10|2023/06/30|警報機リース代||300||23,124",  // 22,824+300
                                     "9|2023/07|入金|||9,807|13,317",              // 23,124-9,807
                                 }));
    // The account adds up the documents themselves: it has the late slip before the ledger carries it.
    EXPECT_EQ(account(kEguchi, 4), (QStringList{
                                       "||||||0", "|2023/4|LPガス|88.0|2,000||2,000",
                                       "8|2023/04/10|配管||2,500||4,500",   // 2,000+2,500
                                       "3|2023/04|入金|||2,000|2,500",      // 4,500-2,000
                                       "|2023/5|LPガス|96.1|2,052||4,552",  // 2,500+2,052
                                       "|2023/6|LPガス|96.1|2,000||6,552",  // 4,552+2,000
                                       "9|2023/06/15|返品||-148||6,404",    // 6,552-148
                                   }));
    EXPECT_EQ(account(kEguchi, 6).value(0), "||||||2,052") << "May's row still lacks it";
    bill(5, "5/31");
    EXPECT_EQ(account(kEguchi, 6).value(0), "||||||4,552");  // 2,500+2,052
    EXPECT_EQ(account(kOno, 4),
              (QStringList{
                  "||||||0", "|2023/4|LPガス|0.0|0||0", "|2023/5|LPガス|30.5|11,665||11,665",
                  "|2023/6|LPガス|40.7|4,899||16,564",  // 11,665+4,899
                  "6|2023/06|入金|||5,000|11,564",      // 16,564-5,000
              }));
}

}  // namespace
}  // namespace akarix
