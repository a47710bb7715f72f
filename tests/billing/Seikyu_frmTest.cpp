#include "billing/Seikyu_frm.h"

#include "platform/forms/FlexGrid.h"
#include "platform/runtime/Calendar.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

/// The billing screen on Saturday, 15 April 2023.
class BillingScreen : public ScreenTest {
 protected:
    void SetUp() override {
        SetClock(DateSerial(2023, 4, 15));
        gDb->Execute("INSERT INTO Syukei(Nen,Tuki,Hizuke) VALUES(2023,3,CDATE('2023/03/31'))");
        OpenScreen<Seikyu_frm>();
    }
    void type(int field, const QString& text) {
        auto& box = clerk.find<TextBox>(QString("ebox(%1)").arg(field));
        box.setFocus();
        box.selectAll();
        clerk.fill(text);
    }
    /// Presses the run; gives what the screen said.
    QString run() {
        clerk.answerAlert();
        clerk.click("Command(0)");
        return clerk.lastSaid();
    }
    static QStringList ledger() {
        return ScratchStore::rows(
            "SELECT Nendo,Getudo,Deal,ZenkaiGaku,GGaku,UGaku,Gaku,NGaku FROM TtoD ORDER BY "
            "Nendo,Getudo,Deal");
    }
    static QStringList closings() {
        return ScratchStore::rows("SELECT Nen,Tuki,Hizuke FROM Syukei ORDER BY Nen,Tuki");
    }

    ScratchStore store;
};

TEST_F(BillingScreen, StandsOnToday) {
    QStringList shown;
    for (const char* name : {"ebox(0)", "ebox(1)", "ebox(2)", "lYobi1", "ebox(5)", "sSyukeibi", "Progress"})
        shown += clerk.text(name);
    EXPECT_EQ(shown.join(u'|'), "2023|4|2023/04/15|土曜|||");
    EXPECT_FALSE(clerk.control("eSaihi").isVisible());
    for (const char* next : {"ebox(1)", "ebox(2)", "ebox(5)", "Command(0)"}) {
        clerk.enter();
        EXPECT_EQ(clerk.focusedName(), next);
    }
}

TEST_F(BillingScreen, EnterOnTheCreationDate) {
    const struct {
        const char* typed;
        const char* date;
        const char* weekday;
    } cases[] = {{"4.20", "2023/04/20", "木曜"}, {"2023/2/29", "2023/2/29", ""}};
    for (const auto& [typed, date, weekday] : cases) {
        type(2, typed);
        EXPECT_EQ(clerk.text("ebox(2)") + clerk.text("lYobi1"), QString(date) + weekday);
        EXPECT_EQ(clerk.focusedName(), "ebox(5)");
    }
}

TEST_F(BillingScreen, TheClosingDateIsReadWhenTheMonthIsLeft) {
    type(1, "3");
    EXPECT_EQ(clerk.text("sSyukeibi"), "2023/03/31");
    type(0, "2022");
    clerk.find<TextBox>("ebox(2)").setFocus();
    EXPECT_EQ(clerk.text("sSyukeibi"), "");
    type(0, "2023");
    clerk.find<TextBox>("ebox(5)").setFocus();
    EXPECT_EQ(clerk.text("sSyukeibi"), "2023/03/31");
    clerk.find<TextBox>("ebox(0)").setFocus();
    clerk.find<TextBox>("ebox(0)").SetText("2022");
    clerk.find<TextBox>("ebox(5)").setFocus();
    EXPECT_EQ(clerk.text("sSyukeibi"), "2023/03/31") << "the year alone does not refresh it";
}

TEST_F(BillingScreen, AMonthIsBilled) {
    ScratchStore::run(
        "INSERT INTO Deal(Code,ACU,Keihou) VALUES(1,1,1);\n"
        "INSERT INTO Deal(Code) VALUES(2);\n"
        "INSERT INTO TtoD(Nendo,Getudo,Deal,GGaku,NGaku) VALUES(2023,3,2,3000,1000);\n"
        "INSERT INTO Dgd(Nendo,Getudo,Deal,Gaku) VALUES(2023,4,1,4827);\n"
        "INSERT INTO Dny(Dno,Eda,Deal,Nendo,Getudo,Gaku) VALUES(1,1,2,2023,4,1500);\n");
    EXPECT_EQ(run(), "集計しました。");
    EXPECT_EQ(ledger(), (QStringList{"2023|3|2|0|3000|0|0|1000", "2023|4|1|0|4827|800|5627|0",
                                     "2023|4|2|2000|0|0|0|1500"}));
    EXPECT_EQ(closings(), (QStringList{"2023|3|2023/03/31", "2023|4|2023/04/15"}));
    EXPECT_EQ(clerk.text("sSyukeibi"), "") << "not before the month is left again";
    type(1, "4");
    EXPECT_EQ(clerk.text("sSyukeibi"), "2023/04/15");

    type(2, "4/28");
    EXPECT_EQ(run(), "集計しました。");
    EXPECT_EQ(ledger().size(), 3) << "run again at will";
    EXPECT_EQ(closings().at(1), "2023|4|2023/04/28");
    EXPECT_EQ(ScratchStore::rows("SELECT Dno,Eda,Gaku,Hizuke FROM Dud ORDER BY Dno,Eda"),
              (QStringList{"1|1|500|2023/04/28", "1|2|300|2023/04/28"}));
}

TEST_F(BillingScreen, WhatStopsTheRun) {
    gDb->Execute("INSERT INTO Deal(Code) VALUES(1)");
    type(2, "4/31");
    EXPECT_EQ(run(), "作成日を正しく入れて下さい。");
    clerk.find<TextBox>("ebox(2)").SetText("");
    EXPECT_EQ(run(), "作成日を正しく入れて下さい。") << "left empty";
    type(2, "3/31");
    EXPECT_EQ(run(), "月度と作成日の月が違います。");
    EXPECT_EQ(ledger(), QStringList());
    EXPECT_EQ(closings().size(), 1);
    type(2, "2024/4/1");
    EXPECT_EQ(run(), "集計しました。") << "another year is no mistake";
    EXPECT_EQ(ledger(), QStringList{"2023|4|1|0|0|0|0|0"});
}

TEST_F(BillingScreen, TheBankIsPicked) {
    gDb->Execute("INSERT INTO Bnk(Code,Stn,BkName) VALUES(123,5,'北銀行')");
    clerk.expect("Help_frm", [this](QWidget&) { clerk.clickCell(clerk.find<FlexGrid>("List"), 0, 2); });
    clerk.click("F6(0)");
    EXPECT_EQ(clerk.text("ebox(5)"), "0123");
    EXPECT_EQ(clerk.focusedName(), "Command(0)");
}

}  // namespace
}  // namespace akarix
