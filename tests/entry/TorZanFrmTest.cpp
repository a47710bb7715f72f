#include "entry/TorZan_frm.h"

#include "billing/Tto.h"
#include "platform/forms/FlexGrid.h"
#include "platform/runtime/DateSerial.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

enum { Code, Namae, Nengetu, Zan };

/// Four customers on two routes; for April 2023 the first has a balance brought forward, the third a debt
/// paid twice over.
class OpeningBalances : public ScreenTest {
 protected:
    void SetUp() override {
        ScratchStore::run(
            "INSERT INTO Rte(Code,Namae) VALUES(2,'南町');\n"
            "INSERT INTO Deal(Code,Namae,Rte) VALUES(4,'高橋',2);\n"
            "INSERT INTO Deal(Code,Namae,Rte) VALUES(1,'山田',2);\n"
            "INSERT INTO Deal(Code,Namae,Rte) VALUES(2,'鈴木',1);\n"
            "INSERT INTO Deal(Code,Namae,Rte) VALUES(3,'佐藤',1);\n"
            "INSERT INTO Deal(Code,Namae,Rte) VALUES(0,'諸口',1);\n"
            "INSERT INTO TtoD(Deal,Nendo,Getudo,ZenkaiGaku,GGaku,NGaku) VALUES(1,2023,4,12345.5,800,50);\n"
            "INSERT INTO TtoD(Deal,Nendo,Getudo,ZenkaiGaku) VALUES(3,2023,4,-2000);\n"
            "INSERT INTO TtoD(Deal,Nendo,Getudo,ZenkaiGaku) VALUES(2,2023,3,999);\n");
        OpenScreen<TorZan_frm>();
    }

    FlexGrid& list() const { return clerk.find<FlexGrid>("TorZan_frm/List"); }
    bool boxIsOpen() const { return clerk.control("tBox").isVisible(); }
    /// Walks through the head from its first field and presses the button that comes behind it.
    void showMonth(const QString& year, const QString& month, const QString& route = {},
                   const QString& customer = {}) {
        clerk.click("Btn(1)");
        ASSERT_EQ(clerk.focusedName(), "ebox(0)");
        for (const QString& text : {year, month, route, customer}) {
            clerk.fill(text);
        }
        ASSERT_EQ(clerk.focusedName(), "Btn(2)");
        clerk.enter();
    }
    QStringList column(int col) const {
        QStringList texts;
        for (int row = 1; row < list().Rows(); ++row) {
            texts += list().TextMatrix(row, col);
        }
        return texts;
    }
    static QStringList stored() {
        return ScratchStore::rows(
            u"SELECT Deal,Nendo,Getudo,ZenkaiGaku,GGaku,NGaku,SyokiFlg FROM TtoD ORDER BY Deal,Nendo,Getudo"_qs);
    }

    ScratchStore store;
};

TEST_F(OpeningBalances, TypedOneUnderTheOtherAndSaved) {
    showMonth("2023", "4");
    EXPECT_EQ(column(Code), (QStringList{"1", "2", "3", "4"})) << "the miscellaneous customer stays out";
    EXPECT_EQ(column(Namae), (QStringList{"山田", "鈴木", "佐藤", "高橋"}));
    EXPECT_EQ(column(Nengetu), QStringList(4, "2023/4"));
    EXPECT_EQ(column(Zan), (QStringList{"12,346", "0", "-2,000", "0"}));

    const auto& box = clerk.find<TextBox>("tBox");
    for (const char* typed : {"15,000", "3200.25", "-700", "8000"}) {
        EXPECT_EQ(clerk.focusedName(), "tBox");
        EXPECT_EQ(box.selectedText(), list().Text()) << "typing replaces the balance";
        EXPECT_EQ(box.geometry(), list().CellRect().translated(list().pos()));
        clerk.fill(typed);
    }
    EXPECT_EQ(clerk.focusedName(), "Btn(10)");
    EXPECT_FALSE(boxIsOpen());
    EXPECT_EQ(column(Zan), (QStringList{"15,000", "3200.25", "-700", "8000"}));

    clerk.enter();
    const QStringList saved{"1|2023|4|15000|800|50|1", "2|2023|3|999|0|0|0", "2|2023|4|3200.25|0|0|1",
                            "3|2023|4|-700|0|0|1", "4|2023|4|8000|0|0|1"};
    EXPECT_EQ(stored(), saved);
    EXPECT_EQ(list().Rows(), 1);
    EXPECT_EQ(clerk.text("ebox(0)"), "");
    EXPECT_EQ(clerk.focusedName(), "ebox(0)");

    BuildMonthLedger(2023, 4, DateSerial(2023, 4, 30));
    CarryForwardMonth(2023, 4);
    EXPECT_EQ(ScratchStore::rows(u"SELECT ZenkaiGaku FROM TtoD WHERE Deal>0 AND Getudo=4 ORDER BY Deal"_qs),
              (QStringList{"15000", "3200.25", "-700", "8000"}))
        << "the billing run leaves them alone";
}

TEST_F(OpeningBalances, TheFieldsNarrowTheCustomersAndEveryOneShownIsFixed) {
    struct Case {
        const char* route;
        const char* customer;
        QStringList codes;
    };
    for (const Case& c : {Case{"2", "", {"1", "4"}},
                          {"", "3", {"3"}},
                          {"2", "4", {"4"}},
                          {"2", "3", {}},
                          {"-1", "-1", {"1", "2", "3", "4"}}}) {
        showMonth("2023", "5", c.route, c.customer);
        EXPECT_EQ(column(Code), c.codes) << c.route << "/" << c.customer;
        EXPECT_EQ(boxIsOpen(), !c.codes.isEmpty());
    }
    showMonth("2023", "5", "2", "4");
    EXPECT_EQ(clerk.text("sRte"), "南町");
    EXPECT_EQ(clerk.text("sNamae"), "高橋");
    clerk.click("Btn(10)");
    EXPECT_EQ(stored().back(), "4|2023|5|0|0|0|1") << "unchanged, but the run must not carry into it";
    EXPECT_EQ(stored().size(), 4);
    EXPECT_EQ(clerk.text("sRte") + clerk.text("sNamae"), "");
}

TEST_F(OpeningBalances, UpAndDownDropWhatWasTyped) {
    showMonth("2023", "4", "2");
    clerk.type("1");
    clerk.up();
    EXPECT_EQ(list().Row(), 1) << "the head is no row";
    clerk.down();
    EXPECT_EQ(list().Row(), 2);
    clerk.type("22");
    clerk.down();
    EXPECT_EQ(list().Row(), 2) << "the last row";
    EXPECT_EQ(clerk.text("tBox"), "22");
    clerk.up();
    EXPECT_EQ(list().Row(), 1);
    EXPECT_EQ(clerk.text("tBox"), "12,346");
    EXPECT_EQ(column(Zan), (QStringList{"12,346", "0"}));
    EXPECT_EQ(clerk.focusedName(), "tBox");
    clerk.press(Qt::Key_Escape);
    EXPECT_EQ(clerk.focusedName(), "List");
}

TEST_F(OpeningBalances, OnlyTheBalanceIsTyped) {
    showMonth("2023", "4");
    for (const int closed : {Code, Namae, Nengetu}) {
        clerk.clickCell(list(), 2, closed);
        EXPECT_FALSE(boxIsOpen()) << closed;
        clerk.fill("7");
        EXPECT_EQ(list().Row(), 2);
    }
    clerk.press(Qt::Key_Right);
    EXPECT_TRUE(boxIsOpen()) << "the cursor has come to the balance";
    clerk.clickCell(list(), 4, Zan);
    clerk.type("5");
    clerk.click("ebox(0)");
    EXPECT_FALSE(boxIsOpen());
    EXPECT_EQ(column(Zan).back(), "0") << "not confirmed";
}

TEST_F(OpeningBalances, ShowsNothingForWhatIsNoMonth) {
    const QStringList before = stored();
    for (const auto& [year, month] : std::vector<std::pair<const char*, const char*>>{
             {"", ""}, {"0", "4"}, {"2023", ""}, {"2023", "0"}, {"2023", "13"}, {"2023", "-4"}}) {
        showMonth(year, month);
        EXPECT_EQ(list().Rows(), 1) << year << "/" << month;
        clerk.click("Btn(10)");
    }
    EXPECT_EQ(clerk.text("ebox(1)"), "-4") << "an empty grid is not saved, and nothing is cleared";
    EXPECT_EQ(clerk.said(), QStringList());

    showMonth("2023", "4");
    clerk.find<TextBox>("ebox(0)").SetText("32768");
    clerk.answerMsgBox();
    clerk.click("Btn(10)");
    EXPECT_TRUE(clerk.lastSaid().startsWith(u"実行時エラー '6'"_qs));
    EXPECT_EQ(stored(), before);
}

TEST_F(OpeningBalances, PicksFromTheLookupsAndCloses) {
    clerk.fill("2023");
    clerk.fill("4");
    clerk.expect(u"Help_frm"_qs,
                 [this](QWidget&) { clerk.clickCell(clerk.find<FlexGrid>(u"List"_qs), 0, 1); });
    clerk.click("F6(0)");
    EXPECT_EQ(clerk.text("ebox(2)") + clerk.text("sRte"), "2南町");
    EXPECT_EQ(clerk.focusedName(), "ebox(3)");
    clerk.expect(u"HelpDeal_frm"_qs, [this](QWidget&) {
        clerk.click("Btn(0)");
        clerk.clickCell(clerk.find<FlexGrid>(u"List"_qs), 1, 1);
    });
    clerk.click("F6(1)");
    EXPECT_FALSE(clerk.text("sNamae").isEmpty());
    EXPECT_EQ(clerk.focusedName(), "Btn(2)");
    clerk.click("Btn(0)");
    EXPECT_FALSE(clerk.isOpen("TorZan_frm"));
}

}  // namespace
}  // namespace akarix
