#include "entry/SlipN2_frm.h"

#include "platform/forms/FlexGrid.h"
#include "platform/runtime/Clock.h"
#include "platform/runtime/DateSerial.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

/// Two customers, the second closing on the 20th, each with a slip in April; today is 15 May 2023.
class PaymentScreen : public ScreenTest {
 protected:
    void SetUp() override {
        SetClock(DateSerial(2023, 5, 15));
        ScratchStore::run(
            "INSERT INTO Deal(Code,Namae,Sime) VALUES(1,'山田',31);\n"
            "INSERT INTO Deal(Code,Namae,Sime) VALUES(2,'鈴木',20);\n"
            "INSERT INTO TtoD(Deal,Nendo,Getudo,ZenkaiGaku,GGaku,UGaku,NGaku) "
            "VALUES(1,2023,3,0,3000,500,0);\n"
            "INSERT INTO TtoD(Deal,Nendo,Getudo,ZenkaiGaku,GGaku,NGaku) VALUES(1,2023,4,3500,4000,3500);\n"
            "INSERT INTO Dny(Dno,Eda,Hizuke,Deal,Kubun,Gaku,Naiyo,Nendo,Getudo) "
            "VALUES(5,1,CDATE('2023/4/10'),1,1,3000,'三月分',2023,4);\n"
            "INSERT INTO Dny(Dno,Eda,Hizuke,Deal,Kubun,Gaku,Naiyo,Nendo,Getudo) "
            "VALUES(5,3,CDATE('2023/4/10'),1,9,500,' ',2023,4);\n"
            "INSERT INTO Dny(Dno,Eda,Hizuke,Deal,Kubun,Gaku,Nendo,Getudo) "
            "VALUES(8,0,CDATE('2023/4/27'),2,2,70,2023,5)");
        OpenScreen<SlipN2_frm>();
    }
    void TearDown() override {
        SetClock(Date());
        ScreenTest::TearDown();
    }

    void type(const QString& name, const QString& text) {
        auto& box = clerk.find<TextBox>(name);
        box.setFocus();
        box.clear();
        clerk.fill(text);
    }
    QString texts(const QStringList& names) const {
        QStringList shown;
        for (const QString& name : names) {
            shown += clerk.text(name);
        }
        return shown.join(u'|');
    }
    QString head() const { return texts({"ebox(0)", "ebox(1)", "sNamae", "ebox(2)"}); }
    QString line(int i) const {
        return texts(
            {QString("dKubun(%1)").arg(i), QString("eGaku(%1)").arg(i), QString("eNaiyo(%1)").arg(i)});
    }
    QStringList history() const {
        const auto& list = clerk.find<FlexGrid>("SlipN2_frm/List");
        QStringList lines;
        for (int row = 1; row < list.Rows(); ++row) {
            QStringList cells;
            for (int col = 0; col < list.Cols(); ++col) {
                cells += list.TextMatrix(row, col);
            }
            lines += cells.join(u'|');
        }
        return lines;
    }
    static QStringList lines(int dno) {
        return ScratchStore::rows(
            QString("SELECT Eda,Hizuke,Deal,Kubun,Gaku,Naiyo,Nendo,Getudo FROM Dny WHERE Dno=%1 ORDER BY Eda")
                .arg(dno));
    }
    static QStringList ledger(int deal) {
        return ScratchStore::rows(
            QString("SELECT Nendo,Getudo,ZenkaiGaku,GGaku,UGaku,NGaku,SyokiFlg FROM TtoD WHERE Deal=%1 "
                    "ORDER BY Nendo,Getudo")
                .arg(deal));
    }

    ScratchStore store;
};

TEST_F(PaymentScreen, EnterWalksTheSlipThenTheHistoryThenTheOpeningBalance) {
    EXPECT_EQ(head(), "9|||") << "the next free number alone";
    QStringList wanted{"ebox(0)", "ebox(1)", "ebox(2)"};
    for (int i = 0; i < 5; ++i) {
        for (const char* field : {"dKubun(%1)", "eGaku(%1)", "eNaiyo(%1)"}) {
            wanted += QString(field).arg(i);
        }
    }
    wanted += "Btn(2)";
    for (const QString& name : wanted) {
        EXPECT_EQ(clerk.focusedName(), name);
        if (name != wanted.back()) clerk.enter();
    }
    for (const char* next : {"Btn(0)", "Btn(1)", "cmdLeft", "cmdRight", "ebox(7)"}) {
        clerk.tab();
        EXPECT_EQ(clerk.focusedName(), next);
    }
    for (int i = 0; i < 2; ++i) {
        clerk.enter();
    }
    EXPECT_EQ(clerk.focusedName(), "Btn(4)");
    clerk.tab();
    clerk.enter();
    for (const char* month : {"", "0", "13"}) {
        EXPECT_EQ(clerk.focusedName(), "ebox(5)") << "until it is a month";
        type("ebox(5)", month);
    }
    type("ebox(5)", "12");
    EXPECT_EQ(clerk.focusedName(), "ebox(6)");
    clerk.find<ComboBox>("dKubun(2)").setFocus();
    clerk.up();
    EXPECT_EQ(clerk.focusedName(), "dKubun(2)") << "the arrows choose";
    clerk.shiftTab();
    EXPECT_EQ(clerk.focusedName(), "eNaiyo(1)");
}

TEST_F(PaymentScreen, APaymentIsTypedAndStored) {
    clerk.enter();
    clerk.fill("2");
    EXPECT_EQ(clerk.text("sNamae"), "鈴木");
    clerk.fill("5.21");
    EXPECT_EQ(clerk.text("ebox(2)"), "2023/05/21");
    clerk.down();
    clerk.enter();
    clerk.fill("12000");
    clerk.fill("五月分");
    clerk.enter();
    clerk.enter();
    clerk.fill("金額なし");
    clerk.enter();
    clerk.fill("-1,500");
    EXPECT_EQ(line(0) + ' ' + line(2), "集金|12,000|五月分 |-1,500|");
    EXPECT_EQ(clerk.text("sTotal"), "10,500");
    clerk.click("Btn(2)");
    EXPECT_EQ(lines(9),
              (QStringList{"1|2023/05/21|2|1|12000|五月分|2023|6", "3|2023/05/21|2|0|-1500| |2023|6"}));
    EXPECT_EQ(ledger(2), QStringList("2023|6|0|0|0|10500|0"));
    EXPECT_EQ(head() + line(0) + clerk.text("sTotal"), "10|||||");
    EXPECT_EQ(clerk.focusedName() + clerk.text("ledgerEnd"), "ebox(0)売掛は2023年6月まで");
}

TEST_F(PaymentScreen, WhatASaveAsksFor) {
    const struct {
        const char* typed[3];
        const char* message;
        const char* focus;
    } cases[] = {
        {{"0", "", ""}, "伝票番号を入れてください。", "ebox(0)"},
        {{"9", "", ""}, "得意先を入れてください。", "ebox(1)"},
        {{"9", "-", "2023/5/1"}, "得意先を入れてください。", "ebox(1)"},
        {{"9", "1", ""}, "入金日を入れてください。", "ebox(2)"},
        {{"9", "1", "2023/2/30"}, "入金日を入れてください。", "ebox(2)"},
    };
    for (const auto& [typed, message, focus] : cases) {
        for (int i = 0; i < 3; ++i) {
            type(QString("ebox(%1)").arg(i), typed[i]);
        }
        type("eGaku(0)", "100");
        clerk.answerAlert();
        clerk.click("Btn(2)");
        EXPECT_EQ(clerk.lastSaid(), message);
        EXPECT_EQ(clerk.focusedName(), focus);
        EXPECT_EQ(clerk.text("eGaku(0)"), "100") << "what was typed stays";
    }
    EXPECT_EQ(lines(9), QStringList());
}

TEST_F(PaymentScreen, ASlipIsLoadedWithItsHistory) {
    type("eNaiyo(4)", "前の客");
    type("ebox(0)", "5");
    EXPECT_EQ(head(), "5|1|山田|2023/04/10");
    EXPECT_EQ(line(0), "集金|3,000|三月分");
    EXPECT_EQ(line(1), "|500|") << "the line below moves up, its class is in no list";
    EXPECT_EQ(line(4), "||");
    EXPECT_EQ(texts({"sTotal", "ebox(7)", "ebox(8)"}), "3,500|2023|4");
    EXPECT_EQ(history(), (QStringList{"繰越|||||3,500", "2023|4|||4,000|0", "||||0|3,000", "||||0|500"}));
    EXPECT_EQ(clerk.focusedName(), "ebox(1)");

    type("ebox(0)", "77");
    EXPECT_EQ(head(), "77|1|山田|") << "a new number for the same customer";
    EXPECT_EQ(line(0) + clerk.text("sTotal") + clerk.text("ebox(7)"), "||");
    EXPECT_EQ(history(), QStringList());

    std::int32_t none = 0;
    std::int32_t number = 8;
    auto& screen = static_cast<SlipN2_frm&>(clerk.form("SlipN2_frm"));
    screen.fromexe(none);
    EXPECT_EQ(head(), "77|1|山田|");
    screen.fromexe(number);
    EXPECT_EQ(head(), "8|2|鈴木|2023/04/27");
    EXPECT_EQ(line(0), "口座振替|70|");
    clerk.click("Btn(2)");
    EXPECT_EQ(lines(8), QStringList("1|2023/04/27|2|2|70| |2023|5")) << "a debit's line gets a place";
}

TEST_F(PaymentScreen, TheWalkersPageThroughTheSlips) {
    const struct {
        const char* button;
        const char* shown;
    } steps[] = {{"cmdLeft", "8|2|鈴木|2023/04/27"},
                 {"cmdLeft", "5|1|山田|2023/04/10"},
                 {"cmdRight", "8|2|鈴木|2023/04/27"},
                 {"cmdRight", "9|||"},
                 {"cmdRight", "9|||"}};
    for (const auto& [button, shown] : steps) {
        clerk.click(QString(button));
        EXPECT_EQ(head(), shown) << button;
    }
    EXPECT_EQ(history(), QStringList());
}

TEST_F(PaymentScreen, ASlipIsDeletedWithoutAQuestion) {
    type("ebox(0)", "5");
    clerk.click("Btn(1)");
    EXPECT_EQ(lines(5), QStringList());
    EXPECT_EQ(ledger(1).at(1), "2023|4|3500|4000|0|0|0");
    EXPECT_EQ(head(), "9|||");
    clerk.click("Btn(1)");
    EXPECT_EQ(ScratchStore::rows("SELECT COUNT(*) FROM Dny"), QStringList("1")) << "the proposed number";
}

TEST_F(PaymentScreen, ALineThatIsNoAmountCostsNothingStored) {
    type("ebox(0)", "5");
    clerk.answerMsgBox();
    type("eGaku(1)", "1-2");
    EXPECT_TRUE(clerk.lastSaid().contains("'13'"));
    clerk.answerMsgBox();
    clerk.click("Btn(2)");
    EXPECT_EQ(lines(5).size(), 2);
}

TEST_F(PaymentScreen, TheOpeningBalanceIsSetAndTakenAway) {
    const auto keep = [this](const char* customer, const char* year, const char* month, const char* amount) {
        type("ebox(1)", customer);
        clerk.find<TextBox>("ebox(4)").SetText(year);
        clerk.find<TextBox>("ebox(5)").SetText(month);
        type("ebox(6)", amount);
        EXPECT_EQ(clerk.focusedName(), "Btn(3)");
        clerk.enter();
    };
    const QStringList before = ledger(1);
    for (const char* amount : {"0", "5"}) {
        keep("1", "2023", "13", amount);
        EXPECT_EQ(clerk.text("ebox(1)"), "1") << "no month: nothing happens";
    }
    EXPECT_EQ(ledger(1), before);
    keep("1", "", "", "5");
    EXPECT_EQ(ledger(1).at(0), "0|0|5|0|0|0|1") << "only a month past the last is turned away";
    keep("1", "0", "0", "0");
    EXPECT_EQ(ledger(1), before);

    keep("1", "2023", "4", "12,000");
    EXPECT_EQ(ledger(1).at(1), "2023|4|12000|4000|0|3500|1");
    EXPECT_EQ(texts({"ebox(1)", "sNamae", "ebox(4)", "ebox(6)"}), "|||") << "ready for the next customer";
    keep("2", "2023", "12", "-80");
    EXPECT_EQ(ledger(2), QStringList("2023|12|-80|0|0|0|1"));
    keep("1", "2023", "4", "0");
    EXPECT_EQ(ledger(1), before.mid(0, 1)) << "a month with real figures goes too";
}

TEST_F(PaymentScreen, TheHistoryIsShownFromAMonth) {
    type("ebox(1)", "1");
    type("ebox(7)", "2023");
    type("ebox(8)", "4");
    clerk.enter();
    EXPECT_EQ(history(), (QStringList{"繰越|||||3,500", "2023/4|3,500|4,000|0|3,500|4,000"}));
    clerk.find<TextBox>("ebox(7)").SetText({});
    clerk.click("Btn(4)");
    EXPECT_EQ(history().size(), 3) << "without a year from the beginning";
}

TEST_F(PaymentScreen, LookupsFillTheSlip) {
    clerk.answerAlert();
    clerk.click("F6(0)");
    EXPECT_EQ(clerk.lastSaid(), "得意先を入れてください。");
    EXPECT_EQ(clerk.focusedName(), "ebox(1)");
    clerk.expect("HelpDeal_frm", [this](QWidget&) {
        clerk.click("Btn(0)");
        clerk.clickCell(clerk.find<FlexGrid>("List"), 1, 2);
    });
    clerk.click("F6(1)");
    EXPECT_EQ(head(), "9|1|山田|");
    clerk.expect("HelpN_frm", [this](QWidget&) { clerk.clickCell(clerk.find<FlexGrid>("List"), 1, 0); });
    clerk.click("F6(0)");
    EXPECT_EQ(head(), "5|1|山田|2023/04/10");
    EXPECT_EQ(clerk.focusedName(), "ebox(1)");
}

}  // namespace
}  // namespace akarix
