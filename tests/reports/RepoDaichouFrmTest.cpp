#include "reports/RepoDaichou_frm.h"

#include "platform/runtime/Calendar.h"
#include "platform/sheet/SheetReader.h"
#include "support/ListScreen.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

/// Two customers from February to April 2023; today is 15 April.
class CustomerLedger : public ScreenTest {
 protected:
    void SetUp() override {
        SetClock(DateSerial(2023, 4, 15));
        ScratchStore::run(
            "INSERT INTO Deal(Code,Namae) VALUES(1,'山田'),(2,'鈴木');\n"
            // Carried into March by the latest row before it, without a look at what was billed.
            "INSERT INTO TtoD(Deal,Nendo,Getudo,ZenkaiGaku,GGaku,UGaku,Gaku,NGaku) "
            "VALUES(1,2022,11,10000,4000,500,0,2500);\n"
            "INSERT INTO TtoD(Deal,Nendo,Getudo,ZenkaiGaku) VALUES(1,2023,4,777),(2,2023,3,300);\n"
            "INSERT INTO Dgd(Nendo,Getudo,Deal,KonkaiMeter,Gaku) "
            "VALUES(2023,2,1,99,1),(2023,3,1,1112.8,4827),(2023,4,1,1120,0),(2023,3,2,5,1800);\n"
            "INSERT INTO Dud(Dno,Eda,Hizuke,Deal,HinNamae,Suu,Tanka,Gaku,Nendo,Getudo) VALUES"
            "(12,1,CDATE('2023/03/20'),1,'ホース',1.5,99.5,-148,2023,3),"
            "(11,1,CDATE('2023/03/05'),1,'ボンベ',1,1990,1990,2023,3),"
            "(11,2,CDATE('2023/03/05'),1,'消費税',0,0,99,2023,3),"
            "(13,1,CDATE('2023/03/31'),1,'工事',2,300000,600000.4,2023,4),"
            "(14,1,CDATE('2023/03/31'),2,'ボンベ',1,7,7,2023,3);\n"
            "INSERT INTO Dny(Dno,Eda,Hizuke,Deal,Gaku,Nendo,Getudo) VALUES"
            "(21,1,CDATE('2023/03/01'),1,1000,2023,3),(21,2,CDATE('2023/03/01'),1,234,2023,3),"
            "(22,1,CDATE('2023/04/02'),1,100.5,2023,4),(23,1,CDATE('2023/04/03'),1,-50,2023,4),"
            "(24,1,CDATE('2023/04/03'),2,8,2023,4)");
        OpenScreen<RepoDaichou_frm>();
    }

    FlexGrid& list() const { return clerk.find<FlexGrid>("RepoDaichou_frm/List"); }
    void set(int field, const QString& text) {
        clerk.find<TextBox>(QString("RepoDaichou_frm/ebox(%1)").arg(field)).SetText(text);
    }
    void showAccount(const QString& month, const QString& customer) {
        set(1, month);
        auto& box = clerk.find<TextBox>("RepoDaichou_frm/ebox(2)");
        box.setFocus();
        box.selectAll();
        clerk.fill(customer);
    }
    QStringList shown(int first = 0) const { return GridRows(list(), first); }
    /// Customer and month of every row of the four tables that a month fills.
    static QString stored() {
        QStringList tables;
        for (const char* table : {"Dgd", "Dud", "Dny", "TtoD"}) {
            tables += ScratchStore::rows(QString("SELECT Deal,Getudo,COUNT(*) AS n FROM %1 WHERE Nendo=2023 "
                                                 "GROUP BY Deal,Getudo ORDER BY Deal,Getudo")
                                             .arg(table))
                          .replaceInStrings("|", ".")
                          .join(u' ');
        }
        return tables.join(" / ");
    }

    ScratchStore store;
};

const char* const kEverything =
    "1.2.1 1.3.1 1.4.1 2.3.1 / 1.3.3 1.4.1 2.3.1 / 1.3.2 1.4.2 2.4.1 / 1.4.1 2.3.1";

TEST_F(CustomerLedger, TheAccountRunsMonthByMonthGasThenSlipsThenPayments) {
    EXPECT_EQ(clerk.text("ebox(0)") + "/" + clerk.text("ebox(1)"), "2023/4");
    showAccount("3", "1");
    EXPECT_EQ(shown(), (QStringList{
                           "||||||||12,000|",
                           "|2023/3|LPガス|1,112.8|||4,827||16,827|1",
                           "11|2023/03/05|ボンベ||1|1,990|1,990||18,817|2",
                           "11|2023/03/05|消費税||||99||18,916|2",
                           "12|2023/03/20|ホース||2|100|-148||18,768|2",
                           "21|2023/03|入金|||||1,234|17,534|3",
                           "|2023/4|LPガス|1,120.0|||0||17,534|1",
                           "13|2023/03/31|工事||2|300,000|600,000||617,534|2",
                           // A payment counts as it is shown, a charge to the last fraction: 617,534.4 - 101.
                           "22|2023/04|入金|||||101|617,433|3",
                           "23|2023/04|入金|||||-50|617,483|3",
                       }));
    EXPECT_EQ(clerk.text("sNamae"), "山田");
    EXPECT_EQ(clerk.text("sNGaku"), "");
    EXPECT_EQ(list().ColWidth(9), 0);
    EXPECT_EQ(clerk.focusedName(), "excelCmd") << "the walk does not stop in front of what deletes";

    showAccount("4", "2");
    EXPECT_EQ(shown(), (QStringList{"||||||||300|", "24|2023/04|入金|||||8|292|3"}));
}

TEST_F(CustomerLedger, WhatHasNoLines) {
    const struct {
        const char* month;
        const char* customer;
        const char* balance;
    } cases[] = {{"5", "1", "777"}, {"3", "3", "0"}, {"3", "", "0"}, {"", "x", "0"}};
    for (const auto& [month, customer, balance] : cases) {
        if (!*customer) set(2, {});
        showAccount(month, customer);
        // Without a month the account begins with the year.
        EXPECT_EQ(shown(8), QStringList{QString(balance) + "|"}) << customer;
    }
    EXPECT_EQ(clerk.text("sNamae"), " ");
}

TEST_F(CustomerLedger, ACodeThatIsNoNumberEndsInTheErrorBox) {
    showAccount("3", "1");
    clerk.answerMsgBox();
    showAccount("3", "1-");
    EXPECT_THAT(clerk.lastSaid().toStdString(), testing::HasSubstr("3075"));
    EXPECT_EQ(shown(), QStringList()) << "nobody's account under that code";
    showAccount("3", "2");
    EXPECT_EQ(shown().size(), 4) << "the screen goes on";
}

TEST_F(CustomerLedger, TheLookupShowsTheAccount) {
    clerk.expect("HelpDeal_frm", [this](QWidget&) {
        clerk.click("Btn(0)");
        clerk.clickCell(clerk.find<FlexGrid>("List"), 2, 1);
    });
    clerk.click("F6(0)");
    EXPECT_EQ(clerk.text("ebox(2)") + clerk.text("sNamae"), "2鈴木");
    EXPECT_EQ(list().TextMatrix(2, 0), "24");
}

// ---- from a line to its screen

TEST_F(CustomerLedger, AGasLineOpensItsMonthsReading) {
    showAccount("3", "1");
    set(2, "2");  // the lines are still those of the other customer
    for (const auto& [row, col] : {std::pair{0, 0}, {1, 0}, {2, 1}, {2, 8}}) {
        clerk.bringToFront("RepoDaichou_frm");
        clerk.clickCell(list(), row, col);
        EXPECT_FALSE(clerk.isOpen("SlipG_frm")) << row << "," << col;
    }
    clerk.clickCell(list(), 2, 0);
    ASSERT_TRUE(clerk.isOpen("SlipG_frm"));
    EXPECT_EQ(clerk.window(), &clerk.form("SlipG_frm"));
    const auto& sheet = clerk.find<FlexGrid>("SlipG_frm/List");
    ASSERT_EQ(sheet.Rows(), 2);
    EXPECT_EQ(sheet.TextMatrix(1, 0) + "|" + sheet.TextMatrix(1, 5), "1|1,112.8");
    EXPECT_EQ(clerk.text("SlipG_frm/ebox(1)"), "3");
}

TEST_F(CustomerLedger, ASlipAndAPaymentOpenTheirDocuments) {
    ScratchStore::run(
        "INSERT INTO Dud(Dno,Eda,Hizuke,Deal,HinNamae,Gaku,Nendo,Getudo) "
        "VALUES(0,1,CDATE('2023/03/06'),1,'番号なし',1,2023,3)");
    showAccount("3", "1");
    ASSERT_EQ(list().TextMatrix(5, 2), "番号なし");
    clerk.clickCell(list(), 5, 0);
    EXPECT_EQ(clerk.window(), &clerk.form("RepoDaichou_frm")) << "a line without a number leads nowhere";

    clerk.clickCell(list(), 6, 0);
    EXPECT_EQ(clerk.window(), &clerk.form("Slip_frm"));
    EXPECT_EQ(clerk.text("ebox(0)") + clerk.text("ebox(4)"), "12ホース");

    clerk.bringToFront("RepoDaichou_frm");
    clerk.clickCell(list(), 7, 0);
    EXPECT_EQ(clerk.window(), &clerk.form("SlipN2_frm"));
    EXPECT_EQ(clerk.text("ebox(0)") + "/" + clerk.text("sTotal"), "21/1,234");
}

// ---- to a workbook

TEST_F(CustomerLedger, TheGridGoesToAWorkbook) {
    showAccount("3", "1");
    AnswerSaveAs(clerk, store.path("a.xlsx"));
    clerk.click("excelCmd");
    const Sheet sheet = ReadSheet(store.path("a.xlsx"), "Sheet1");
    EXPECT_EQ(sheet.shownText({2, 4}), "消費先台帳");
    EXPECT_EQ(sheet.shownText({4, 1}), "1 : 山田     2023/3以降");
    EXPECT_EQ(sheet.cells.at({8, 9}).number, 16827);
    EXPECT_FALSE(sheet.cells.contains({8, 10})) << "the kind of a line is nobody's concern";
}

// ---- the two commands that delete

TEST_F(CustomerLedger, DeletingIsAskedForWithTheSafeAnswerFirst) {
    showAccount("3", "1");
    set(3, "2023");
    set(4, "3");
    const QStringList before = shown();
    for (const char* button : {"Command", "siteiCmd"}) {
        clerk.answerConfirmRev(true);
        clerk.click(button);
        EXPECT_EQ(stored(), kEverything) << button;
        EXPECT_EQ(shown(), before);
        EXPECT_EQ(clerk.text("ebox(3)") + clerk.text("ebox(4)"), "20233");
    }
    EXPECT_EQ(clerk.said(), (QStringList{"この対象年月のデータを削除しますか？",
                                         "この対象年月 1 のデータを削除しますか？"}));
}

TEST_F(CustomerLedger, AMonthOfAllCustomersGoes) {
    showAccount("3", "1");
    set(3, "2023");
    set(4, "3");
    clerk.answerConfirmRev(false);
    clerk.click("Command");
    EXPECT_EQ(stored(), "1.2.1 1.4.1 / 1.4.1 / 1.4.2 2.4.1 / 1.4.1");
    EXPECT_EQ(shown().size(), 5) << "shown anew";
    EXPECT_EQ(clerk.text("ebox(3)") + clerk.text("ebox(4)"), "");
    EXPECT_EQ(ScratchStore::rows("SELECT Nendo,Getudo FROM TtoD WHERE Nendo<2023"), QStringList{"2022|11"});
}

TEST_F(CustomerLedger, AMonthOfOneCustomerGoes) {
    const struct {
        const char *year, *month, *customer;
    } asksNothing[] = {{"", "3", "1"}, {"2023", "0", "1"}, {"2023", "3", ""}, {"2023", "3", "x"}};
    for (const auto& [year, month, customer] : asksNothing) {
        set(3, year);
        set(4, month);
        set(2, customer);
        clerk.click("siteiCmd");
    }
    set(3, "2023");
    set(4, "3");
    set(2, "1");
    clerk.answerConfirmRev(false);
    clerk.click("siteiCmd");
    EXPECT_EQ(stored(), "1.2.1 1.4.1 2.3.1 / 1.4.1 2.3.1 / 1.4.2 2.4.1 / 1.4.1 2.3.1");
    EXPECT_EQ(clerk.text("ebox(3)") + clerk.text("ebox(4)"), "");
    EXPECT_EQ(shown().value(0), "||||||||12,000|") << "shown anew, without what March had carried";
}

}  // namespace
}  // namespace akarix
