#include "entry/Slip_frm.h"

#include "platform/forms/FlexGrid.h"
#include "platform/runtime/Clock.h"
#include "platform/runtime/DateSerial.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"
#include "toolkit/FieldWalk.h"
#include "values/Dates.h"

namespace akarix {
namespace {

/// Three slips, the last an automatic one; today is 15 April 2023.
class SalesSlip : public ScreenTest {
 protected:
    void SetUp() override {
        SetClock(DateSerial(2023, 4, 15));
        const QString line = QStringLiteral(
            "INSERT INTO Dud(Dno,Eda,Hizuke,Deal,HinCode,HinNamae,Suu,Tanka,Gaku,Nendo,Getudo,CreateAuto) "
            "VALUES(%1);\n");
        ScratchStore::run(
            "INSERT INTO Deal(Code,Namae,Sime) VALUES(1,'山田',31);\n"
            "INSERT INTO Deal(Code,Namae,Sime) VALUES(2,'鈴木',20);\n"
            "INSERT INTO Deal(Code,Namae,Sime) VALUES(3,'佐藤',30);\n"
            "INSERT INTO Hin(Code,Namae,Tanka) VALUES(7,'ガスコンロ',1990.4);\n"
            "INSERT INTO Hin(Code,Namae,Tanka) VALUES(8,'ゴム管',99);\n" +
            line.arg("10,1,#2023/03/05#,2,7,'旧コンロ',1.5,1234567,1851850,2023,3,0") +
            line.arg("10,2,#2023/03/05#,2,0,'出張費',0,0,-500,2023,3,0") +
            line.arg("12,1,#2023/04/01#,1,8,'ゴム管',0.5,99,49,2023,4,0") +
            line.arg("15,1,#2023/04/30#,3,0,'警報機リース代',0,0,300,2023,4,1"));
        OpenScreen<Slip_frm>();
    }
    void TearDown() override {
        SetClock(Date());
        ScreenTest::TearDown();
    }

    QString box(int index) const { return clerk.text(QString("Slip_frm/ebox(%1)").arg(index)); }
    QString customer() const { return clerk.text("Slip_frm/sNamae"); }
    /// A line of the slip, "code|name|quantity|price|amount".
    QString line(int number) const {
        QStringList cells;
        for (const int index : {3 * number, 3 * number + 1, 20 + number, 26 + number, 3 * number + 2}) {
            cells += box(index);
        }
        return cells.join(u'|');
    }
    /// Types into field after field, Enter behind each; "-" leaves one as it stands.
    void walk(int from, const QStringList& texts) {
        FocusSelect(clerk.find<TextBox>(QString("ebox(%1)").arg(from)));
        for (const QString& text : texts) {
            if (text.isEmpty()) clerk.press(Qt::Key_Delete);
            clerk.fill(text == u"-" ? QString() : text);
        }
    }
    void put(int index, const QString& text) { walk(index, {text}); }
    /// Cases of cells, "a|b|c" each.
    static QList<QStringList> table(std::initializer_list<const char*> cases) {
        QList<QStringList> rows;
        for (const char* text : cases) {
            rows += QString(text).split('|');
        }
        return rows;
    }
    static QStringList stored(int number) {
        return ScratchStore::rows(
            QString("SELECT Eda,FORMAT(Hizuke,'yyyy/mm/dd'),Deal,HinCode,HinNamae,Suu,Tanka,Gaku,Nendo,"
                    "Getudo,CreateAuto FROM Dud WHERE Dno=%1 ORDER BY Eda")
                .arg(number));
    }
    static QString numbers() {
        return ScratchStore::rows("SELECT DISTINCT Dno FROM Dud ORDER BY Dno").join(u',');
    }

    ScratchStore store;
};

TEST_F(SalesSlip, ASlipIsKeyedFieldByField) {
    EXPECT_EQ(box(0), "16");
    EXPECT_EQ(box(1), "2023/04/15");
    EXPECT_EQ(clerk.focusedName(), "ebox(0)");
    walk(0, {"-", "3.31", "1"});
    EXPECT_EQ(box(1), "2023/03/31");
    EXPECT_EQ(customer(), "山田");
    walk(3, {"7", "-", "1", "-", "-"});
    EXPECT_EQ(line(1), "7|ガスコンロ|1|1,990|1,990");
    walk(6, {"", "消費税", "", "", "*5"});
    EXPECT_EQ(line(2), "|消費税|||99");
    walk(9, {"", "", "", "", "500"});  // neither code nor name
    walk(12, {"8", "継手", "-1.5", "-", "-"});
    EXPECT_EQ(line(4), "8|継手|-1.5|99|-148");
    walk(15, {"99", "", "", "12", "34"});  // an item nobody knows
    walk(18, {"", "手間", "", "", "*100"});
    EXPECT_EQ(clerk.focusedName(), "Btn(2)");
    EXPECT_EQ(stored(16), QStringList()) << "nothing is written before the save";
    clerk.enter();

    EXPECT_EQ(
        stored(16),
        (QStringList{"1|2023/03/31|1|7|ガスコンロ|1|1990|1990|2023|3|0",
                     "2|2023/03/31|1|0|消費税|0|0|99|2023|3|0", "3|2023/03/31|1|8|継手|-1.5|99|-148|2023|3|0",
                     "4|2023/03/31|1|99| |0|12|34|2023|3|0", "5|2023/03/31|1|0|手間|0|0|34|2023|3|0"}));
    EXPECT_EQ(clerk.focusedName(), "ebox(0)");
    EXPECT_EQ(box(0), "17");
    EXPECT_EQ(box(1), "2023/04/15") << "not the day last keyed";
    EXPECT_EQ(customer(), QString());
    EXPECT_EQ(line(1), "||||");
}

TEST_F(SalesSlip, AmountsAreCutTowardZero) {
    // quantity, price, amount
    for (const auto& c : table({"1.5|99|148", "-1.5|99|-148", "0.5|1|", "1,000|1,234|1,234,000", "|99|",
                                "3|0.3333|", "99999999|999,999|99,999,899,000,001"})) {
        walk(21, {c[0], c[1]});
        EXPECT_EQ(box(5), c[2]) << c[0].toStdString() << " * " << c[1].toStdString();
        clerk.enter();
        EXPECT_EQ(box(5), c[2]) << "leaving the field";
    }
    // the line above, what is typed, what stands there then
    for (const auto& c : table({"1,990|*5|99", "-1,990|*5|-99", "1000| * 8 % |80", "100|*29|29",
                                "1000|*8.25|82", "1000|*|", "|*5|", "1000|5*|5*", "1000|120|120"})) {
        put(17, c[0]);
        put(20, c[1]);
        EXPECT_EQ(box(20), c[2]) << c[0].toStdString() << ' ' << c[1].toStdString();
    }
    put(5, "*5");
    EXPECT_EQ(box(5), "*5") << "nothing stands above the first line";
}

TEST_F(SalesSlip, AStoredSlipIsShown) {
    put(0, "010");
    EXPECT_EQ(clerk.focusedName(), "ebox(1)");
    EXPECT_EQ(box(0), "10") << "as it is stored";
    EXPECT_EQ(box(1) + box(2) + customer(), "2023/03/052鈴木");
    EXPECT_EQ(line(1), "7|旧コンロ|1.5|1,234,567|1,851,850");
    EXPECT_EQ(line(2), "|出張費|||-500");
    walk(6, {"-", "-"});
    EXPECT_EQ(line(2), "|出張費|||-500") << "free text is no item to ask for";
    put(6, "8");
    EXPECT_EQ(line(2), "8|ゴム管||99|-500");
    put(6, "");
    EXPECT_EQ(line(2), "| |||-500") << "the item goes with its code";

    std::int32_t none = 0;
    std::int32_t slip = 12;
    auto& form = Form::Instance<Slip_frm>();
    form.fromexe(none);
    EXPECT_EQ(box(0), "10");
    form.fromexe(slip);
    EXPECT_EQ(line(1) + line(2), "8|ゴム管|.5|99|49||||");

    put(0, "11");
    EXPECT_EQ(box(0), "11") << "a new slip under the number typed";
    EXPECT_EQ(box(1) + box(2) + customer() + line(1), "2023/04/15||||");
    EXPECT_EQ(clerk.focusedName(), "ebox(1)");

    for (int eda = 2; eda <= 9; ++eda) {
        gDb->Execute(QString("INSERT INTO Dud(Dno,Eda,Deal,HinNamae,Gaku) VALUES(12,%1,1,'x',%1)").arg(eda));
    }
    put(0, "12");
    EXPECT_EQ(line(6), "|x|||6") << "the screen is full";
}

TEST_F(SalesSlip, SlipsAreWalked) {
    for (const auto& c : table({"Left|15|佐藤", "Left|12|山田", "Left|10|鈴木", "Left|16|", "Right|16|"})) {
        clerk.click("cmd" + c[0]);
        EXPECT_EQ(box(0) + customer(), c[1] + c[2]);
    }
    put(0, "11");
    clerk.click("cmdRight");
    EXPECT_EQ(box(0), "12");
}

TEST_F(SalesSlip, TheClosingDaySaysTheMonth) {
    for (const char* slip : {"2023/03/31|1|2023|3", "2023/03/31|3|2023|4", "2022/12/25|2|2023|1",
                             "2023/04/20|2|2023|4", "2023/04/30|99|2023|4"}) {
        const QStringList head = QString(slip).split('|');
        walk(0, {"20", head[0], head[1], "8"});
        clerk.click("Btn(2)");
        EXPECT_EQ(
            ScratchStore::rows("SELECT FORMAT(Hizuke,'yyyy/mm/dd'),Deal,Nendo,Getudo FROM Dud WHERE Dno=20"),
            QStringList(slip));
    }
}

TEST_F(SalesSlip, ASaveIsRefused) {
    const QStringList before = stored(10) + stored(15);
    // the head, the message, the field then
    for (const auto& c : table({"|||伝票番号は不正です。|ebox(0)", "10|2/30|1|日付が不正です。|ebox(1)",
                                "10|-|x|得意先が選択されていません。|ebox(0)",
                                "15|-|-|自動で作成された伝票は修正できません。|Btn(2)"})) {
        walk(0, c.first(3));
        clerk.answerAlert();
        clerk.click("Btn(2)");
        EXPECT_EQ(clerk.lastSaid(), c[3]);
        EXPECT_EQ(clerk.focusedName(), c[4]);
        EXPECT_EQ(stored(10) + stored(15), before);
    }
}

TEST_F(SalesSlip, ASlipIsReplacedWhole) {
    walk(0, {"10", "-", "1"});
    walk(3, {"", ""});
    put(8, "700");
    clerk.click("Btn(2)");
    EXPECT_EQ(stored(10), QStringList("1|2023/03/05|1|0|出張費|0|0|700|2023|3|0"));
    EXPECT_EQ(numbers(), "10,12,15");
}

TEST_F(SalesSlip, ASlipIsDeleted) {
    put(0, "10");
    clerk.answerConfirm(false);
    clerk.click("Btn(1)");
    EXPECT_EQ(clerk.lastSaid(), "この売上伝票を削除します。");
    EXPECT_EQ(numbers(), "10,12,15");
    EXPECT_EQ(box(0), "10");
    for (const char* number : {"10", "15"}) {  // an automatic one too: the next billing makes it again
        put(0, number);
        clerk.answerConfirm(true);
        clerk.click("Btn(1)");
    }
    EXPECT_EQ(numbers(), "12");
    EXPECT_EQ(box(0), "13");
}

TEST_F(SalesSlip, AnApostropheInANameLosesTheSlip) {
    put(0, "10");
    put(7, "O'Hara");
    clerk.answerMsgBox();
    clerk.click("Btn(2)");
    EXPECT_TRUE(clerk.lastSaid().startsWith("実行時エラー '3075'")) << clerk.said().last().toStdString();
    EXPECT_EQ(stored(10).size(), 1) << "the lines before it are written, the old ones gone";
    EXPECT_EQ(line(2), "|O'Hara|||-500") << "and stand on the screen to be saved again";
    put(7, "オハラ");
    clerk.click("Btn(2)");
    EXPECT_EQ(stored(10).size(), 2);
}

TEST_F(SalesSlip, CodesArePicked) {
    const auto pick = [this](const char* picture, const char* dialog, int row) {
        clerk.expect(dialog, [this, row](QWidget&) {
            if (clerk.window()->objectName() == u"HelpDeal_frm") clerk.click("Btn(0)");
            clerk.clickCell(clerk.find<FlexGrid>("List"), row, 0);
        });
        clerk.click(picture);
    };
    pick("F6(0)", "HelpSlip_frm", 2);
    EXPECT_EQ(box(0) + customer(), "12山田");
    EXPECT_EQ(clerk.focusedName(), "ebox(1)");
    pick("F6(1)", "HelpDeal_frm", 2);
    EXPECT_EQ(box(2) + customer(), "2鈴木");
    EXPECT_EQ(clerk.focusedName(), "ebox(3)");
    for (int i = 0; i < 6; ++i) {
        pick(QString("F6(%1)").arg(2 + i).toLatin1(), "Help_frm", 1);
        EXPECT_THAT(line(i + 1).toStdString(), testing::StartsWith(line(1).first(3).toStdString()));
        EXPECT_EQ(clerk.focusedName(), QString("ebox(%1)").arg(4 + 3 * i));
    }
}

TEST_F(SalesSlip, EraYearsAreStoredAsWesternOnes) {
    gDateMode = 1;
    OpenScreen<Slip_frm>();
    EXPECT_EQ(box(1), "35/04/15");
    walk(0, {"-", "23.3.5", "1", "8"});
    EXPECT_EQ(box(1), "23/03/05");
    clerk.click("Btn(2)");
    gDateMode = 2;
    EXPECT_EQ(stored(16), QStringList("1|2011/03/05|1|8|ゴム管|0|99|0|2011|3|0"));
}

}  // namespace
}  // namespace akarix
