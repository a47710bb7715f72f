#include "entry/SlipG_frm.h"

#include <QTemporaryDir>

#include "platform/forms/FlexGrid.h"
#include "platform/runtime/Clock.h"
#include "platform/runtime/DateSerial.h"
#include "platform/sheet/SheetReader.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

enum { ZenkaiMeter = 2, KoukanMeter, KoukanGoMeter, KonkaiMeter, Suu, Gaku, Hi };

/// Four customers on two routes, read the last time in March; today is 15 April 2023.
class ReadingSheet : public ScreenTest {
 protected:
    void SetUp() override {
        SetClock(DateSerial(2023, 4, 15));
        ScratchStore::run(
            "INSERT INTO Rte(Code,Kana,Namae,Kensin) VALUES(1,'ｷﾀ','北町',10);\n"
            "INSERT INTO Rte(Code,Kana,Namae,Kensin) VALUES(2,'ﾐﾅﾐ','南町',0);\n"
            "INSERT INTO Deal(Code,Namae,Rte,Haisou,TankaPtn) VALUES(1,'山田',2,10,1);\n"
            "INSERT INTO Deal(Code,Namae,Rte,Haisou,TankaPtn) VALUES(2,'鈴木',1,30,1);\n"
            "INSERT INTO Deal(Code,Namae,Rte,Haisou,TankaPtn) VALUES(3,'佐藤',1,20,2);\n"
            "INSERT INTO Deal(Code,Namae,Rte,Haisou,TankaPtn) VALUES(4,'高橋',1,20,9);\n"
            "INSERT INTO GasKeisan(Ptn,St,Ed,Kihon,Tanka) VALUES(1,0,6,1800,0);\n"
            "INSERT INTO GasKeisan(Ptn,St,Ed,Kihon,Tanka) VALUES(1,6,20,1800,480.5);\n"
            "INSERT INTO GasKeisan(Ptn,St,Ed,Kihon,Tanka) VALUES(2,0,999,1500.5,333.3);\n"
            "INSERT INTO Dgd(Nendo,Getudo,Deal,KonkaiMeter) VALUES(2022,12,1,77);\n"
            "INSERT INTO Dgd(Nendo,Getudo,Deal,KonkaiMeter) VALUES(2023,3,1,100.5);\n"
            "INSERT INTO Dgd(Nendo,Getudo,Deal,KonkaiMeter) VALUES(2023,3,2,900);\n"
            "INSERT INTO Dgd(Nendo,Getudo,Deal,KonkaiMeter) VALUES(2023,3,3,50);\n");
        OpenScreen<SlipG_frm>();
    }
    void TearDown() override {
        SetClock(Date());
        ScreenTest::TearDown();
    }

    FlexGrid& list() const { return clerk.find<FlexGrid>("SlipG_frm/List"); }
    QString box(int index) const { return clerk.text(QString("SlipG_frm/ebox(%1)").arg(index)); }
    /// Walks through the head from its first field, typing what is given, and shows the month.
    void showMonth(const QStringList& typed = {}) {
        clerk.find<TextBox>("ebox(0)").setFocus();
        for (int i = 0; i < 5; ++i) {
            clerk.fill(typed.value(i));
        }
        ASSERT_EQ(clerk.focusedName(), "Command1");
        clerk.enter();
    }
    void typeInto(int row, int col, const QString& text) {
        clerk.clickCell(list(), row, col);
        clerk.fill(text);
    }
    /// The grid's rows from `first` on, "a|b|c" each.
    QStringList shown(int first = 0) const {
        QStringList lines;
        for (int row = 1; row < list().Rows(); ++row) {
            QStringList cells;
            for (int col = first; col < list().Cols(); ++col) {
                cells += list().TextMatrix(row, col);
            }
            lines += cells.join(u'|');
        }
        return lines;
    }
    static QStringList stored(int month = 4) {
        return ScratchStore::rows(QString("SELECT Deal,ZenkaiMeter,KoukanMeter,KoukanGoMeter,KonkaiMeter,Suu,"
                                          "Gaku,Hi FROM Dgd WHERE Nendo=2023 AND Getudo=%1 ORDER BY Deal")
                                      .arg(month));
    }
    static QString storedCodes(int month = 4) {
        return ScratchStore::rows(
                   QString("SELECT Deal FROM Dgd WHERE Nendo=2023 AND Getudo=%1 ORDER BY Deal").arg(month))
            .join(u',');
    }

    ScratchStore store;
};

TEST_F(ReadingSheet, AMonthIsReadInTheOrderOfTheRound) {
    showMonth();
    EXPECT_EQ(shown(), (QStringList{"3|佐藤|50.0|.|.|0.0|0.0|0|25", "4|高橋|0.0|.|.|0.0|0.0|0|25",
                                    "2|鈴木|900.0|.|.|0.0|0.0|0|25", "1|山田|100.5|.|.|0.0|0.0|0|25"}));
    EXPECT_EQ(stored().at(1), "2|900|0|0|0|0|0|25") << "looking at a month opens it in the store";

    const struct {
        const char* reading;
        const char* cells;  ///< reading, use, charge
    } readings[] = {
        {"62.3", "62.3|12.3|5,600|25"},  // 1,500.5 + the floor of 12.3 * 333.3; the half yen goes up
        {"10", "10|10.0|0|25"},          // no tariff
        {"912.3", "912.3|12.3|4,827|25"},
        {"106.5", "106.5|6.0|1,800|25"},  // on the edge of two bands, the lower one counts
    };
    int row = 1;
    for (const auto& [reading, cells] : readings) {
        EXPECT_EQ(clerk.focusedName(), "tBox");
        EXPECT_EQ(list().Row(), row);
        EXPECT_EQ(list().Col(), KonkaiMeter);
        clerk.type(reading);
        row % 2 ? clerk.enter() : clerk.down();
        EXPECT_EQ(shown(KonkaiMeter).at(row - 1), cells);
        ++row;
    }
    EXPECT_EQ(clerk.focusedName(), "ebox(3)") << "past the last row";
    EXPECT_FALSE(clerk.control("tBox").isVisible());
    EXPECT_EQ(stored().at(0), "1|100.5|0|0|0|0|0|25") << "nothing is written before the save";

    clerk.click("Btn(2)");
    EXPECT_EQ(stored(), (QStringList{"1|100.5|0|0|106.5|6|1800|25", "2|900|0|0|912.3|12.3|4827|25",
                                     "3|50|0|0|62.3|12.3|5600|25", "4|0|0|0|10|10|0|25"}));
    EXPECT_EQ(shown(), QStringList());
    EXPECT_EQ(clerk.focusedName(), "ebox(0)");
    EXPECT_EQ(stored(3).size(), 3) << "other months stay";
}

TEST_F(ReadingSheet, AMonthIsTakenUpAgain) {
    showMonth();
    for (const char* reading : {"1062.3", "", "890"}) {
        clerk.fill(reading);
    }
    clerk.click("Btn(2)");
    showMonth();
    EXPECT_EQ(shown(ZenkaiMeter), (QStringList{"50.0|.|.|1,062.3|1,012.3|0|25", "0.0|.|.|0.0|0.0|0|25",
                                               "900.0|.|.|890.0|-10.0|0|25", "100.5|.|.|0.0|0.0|0|25"}));
    clerk.enter();
    EXPECT_EQ(shown(KonkaiMeter).at(0), "1,062.3|1,012.3|0|25") << "confirmed as it stands";
    clerk.click("Btn(2)");
    EXPECT_EQ(stored().at(2), "3|50|0|0|1062.3|1012.3|0|25") << "commas fall away";
    showMonth({"", "5"});
    EXPECT_EQ(list().TextMatrix(1, ZenkaiMeter), "1,062.3") << "the next month begins where this one ended";
}

TEST_F(ReadingSheet, AnExchangedMeterCountsWhenTheReadingIsConfirmed) {
    showMonth();
    typeInto(1, KoukanMeter, "90");
    EXPECT_EQ(clerk.focusedName(), "List") << "the cell is done, the cursor stays";
    EXPECT_EQ(list().Col(), KoukanMeter);
    typeInto(1, KoukanGoMeter, "5");
    EXPECT_EQ(shown(KoukanMeter).at(0), "90|5|0.0|0.0|0|25");
    typeInto(1, KonkaiMeter, "27.3");
    EXPECT_EQ(shown(KoukanMeter).at(0), "90|5|27.3|62.3|22,265|25");

    typeInto(3, ZenkaiMeter, "800");
    typeInto(3, KoukanGoMeter, "100");  // without an exchange it means nothing
    typeInto(3, KonkaiMeter, "805.5");
    EXPECT_EQ(shown(ZenkaiMeter).at(2), "800|.|100|805.5|5.5|1,800|25");
    clerk.click("Btn(2)");
    const QStringList saved{"2|800|0|100|805.5|5.5|1800|25", "3|50|90|5|27.3|62.3|22265|25"};
    EXPECT_EQ(stored().mid(1, 2), saved);

    showMonth();
    EXPECT_EQ(shown(KoukanMeter).at(0), "90.|5.|27.3|62.3|22,265|25");
    clerk.enter();
    clerk.click("Btn(2)");
    EXPECT_EQ(stored().mid(1, 2), saved) << "the bare point of a whole reading does no harm";
}

TEST_F(ReadingSheet, WhatEachColumnTakes) {
    showMonth();
    typeInto(2, Gaku, "5,000");
    typeInto(2, Hi, "31");
    EXPECT_EQ(clerk.focusedName(), "tBox") << "no such day in April; nothing is said";
    EXPECT_EQ(list().TextMatrix(2, Hi), "25");
    typeInto(2, Hi, "30");
    EXPECT_EQ(shown(Gaku).at(1), "5,000|30");

    for (const int closed : {0, 1, int{Suu}}) {
        clerk.clickCell(list(), 2, closed);
        EXPECT_FALSE(clerk.control("tBox").isVisible()) << closed;
        clerk.fill("7");
        EXPECT_EQ(list().Row(), 2);
    }
    clerk.clickCell(list(), 2, KonkaiMeter);
    clerk.type("55");
    clerk.clickCell(list(), 3, KonkaiMeter);
    EXPECT_EQ(shown().at(1), "4|高橋|0.0|.|.|0.0|0.0|5,000|30") << "text that was not confirmed is dropped";
    clerk.type("66");
    clerk.press(Qt::Key_Escape);
    EXPECT_EQ(clerk.focusedName(), "List");
    clerk.up();
    clerk.fill("8");
    EXPECT_EQ(shown(KonkaiMeter).mid(1), (QStringList{"8|8.0|0|30", "0.0|0.0|0|25", "0.0|0.0|0|25"}));
    clerk.click("Btn(2)");
    EXPECT_EQ(stored().at(3), "4|0|0|0|8|8|0|25") << "every row takes the day of the head";
}

TEST_F(ReadingSheet, AFilterOpensItsOwnRowsAndSavesAwayTheOthers) {
    showMonth({"", "", "", "1"});
    EXPECT_EQ(storedCodes(), "2,3,4");
    EXPECT_EQ(stored().at(0), "2|900|0|0|0|0|0|10") << "on the route's own day";
    clerk.click("Btn(0)");
    gDb->Execute("INSERT INTO Deal(Code,Namae,Rte,Haisou) VALUES(9,'新居',1,5)");
    showMonth();
    EXPECT_EQ(storedCodes(), "2,3,4") << "the month is open, nobody is added";
    clerk.click("Btn(0)");
    showMonth({"", "", "", "2", "9"});
    EXPECT_EQ(shown(), QStringList()) << "not on that route";
    EXPECT_EQ(clerk.focusedName(), "Command1");
    clerk.click("Btn(0)");
    showMonth({"", "", "", "", "9"});
    EXPECT_EQ(shown(), QStringList{"9|新居|0.0|.|.|0.0|0.0|0|25"}) << "asked for by himself he comes in";
    EXPECT_EQ(storedCodes(), "2,3,4,9");
    clerk.fill("10");
    clerk.click("Btn(2)");
    EXPECT_EQ(stored(), QStringList{"9|0|0|0|10|10|0|25"}) << "the whole month goes, whatever is shown";
}

TEST_F(ReadingSheet, RowsThatBelongToNobodyAreNotSavedAgain) {
    ScratchStore::run(
        "INSERT INTO Deal(Code,Namae,Rte) VALUES(0,'無し',1);\n"
        "INSERT INTO Dgd(Nendo,Getudo,Deal) VALUES(2023,4,0);\n"
        "INSERT INTO Dgd(Nendo,Getudo,Deal) VALUES(2023,4,2);\n"
        "INSERT INTO Dgd(Nendo,Getudo,Deal) VALUES(2023,4,777);\n");
    showMonth();
    EXPECT_EQ(list().Rows(), 3) << "777 is no customer";
    EXPECT_EQ(list().TextMatrix(1, 0), "0");
    clerk.click("Btn(2)");
    EXPECT_EQ(storedCodes(), "2");
}

TEST_F(ReadingSheet, TheHeadChecksOnEnter) {
    const struct {
        int field;
        const char* text;
        bool goesOn;
    } cases[] = {
        {0, "1999", false}, {0, "2000", true}, {1, "0", false},
        {1, "13", false},   {1, "12", true},   {2, "", true},  // keeps what stands there
        {2, "0", false},    {2, "45", true},                   // the save will tell
    };
    for (const auto& [field, text, goesOn] : cases) {
        clerk.click("Btn(0)");
        clerk.find<TextBox>(QString("ebox(%1)").arg(field)).setFocus();
        clerk.find<TextBox>(QString("ebox(%1)").arg(field)).selectAll();
        clerk.fill(text);
        EXPECT_EQ(clerk.focusedName(), QString("ebox(%1)").arg(goesOn ? field + 1 : field)) << text;
    }
    clerk.click("Btn(0)");
    clerk.find<TextBox>("ebox(1)").SetText("32");
    clerk.find<TextBox>("ebox(2)").setFocus();
    clerk.fill("10");
    EXPECT_EQ(clerk.focusedName(), "ebox(2)") << "a good day is held back by the month";
    for (const auto& [year, month, back] : {std::tuple{"1999", "4", "ebox(0)"}, {"2023", "13", "ebox(1)"}}) {
        clerk.find<TextBox>("ebox(0)").SetText(year);
        clerk.find<TextBox>("ebox(1)").SetText(month);
        clerk.click("Command1");
        EXPECT_EQ(clerk.focusedName(), back);
        EXPECT_TRUE(clerk.control("Command1").isEnabled());
    }
    EXPECT_EQ(storedCodes(), "");
}

TEST_F(ReadingSheet, TheRouteBringsItsDay) {
    clerk.find<TextBox>("ebox(3)").setFocus();
    clerk.fill("1");
    EXPECT_EQ(clerk.text("sRte"), "北町");
    EXPECT_EQ(box(2), "10");
    clerk.up();
    clerk.fill("2");
    EXPECT_EQ(clerk.text("sRte"), "南町");
    EXPECT_EQ(box(2), "10") << "a route without a day of its own leaves it";
    clerk.up();
    clerk.type("1");
    clerk.find<TextBox>("ebox(2)").SetText("5");
    clerk.click("Btn(3)");
    EXPECT_EQ(box(2), "10") << "by whatever way the field is left";

    clerk.click("Btn(0)");
    const auto pick = [this](int row, int col) {
        return [this, row, col](QWidget&) { clerk.clickCell(clerk.find<FlexGrid>("List"), row, col); };
    };
    clerk.expect("Help_frm", pick(0, 1));
    clerk.click("F6(0)");
    EXPECT_EQ(box(3), "1");
    EXPECT_EQ(clerk.focusedName(), "ebox(3)") << "one field short: the route itself is still to be entered";
    EXPECT_EQ(clerk.text("sRte"), "");
    clerk.expect("HelpDeal_frm", [&](QWidget& dialog) {
        clerk.click("Btn(0)");
        pick(1, 2)(dialog);
    });
    clerk.click("F6(1)");
    EXPECT_EQ(box(4), "3");
    EXPECT_EQ(clerk.focusedName(), "Command1");
}

TEST_F(ReadingSheet, ADayThatIsNoneStopsTheSave) {
    showMonth();
    clerk.fill("60");
    for (const char* day : {"31", "", "0"}) {
        clerk.find<TextBox>("ebox(2)").SetText(day);
        clerk.answerAlert();
        clerk.click("Btn(2)");
        EXPECT_EQ(clerk.lastSaid(), "検針日を正しく入れて下さい。") << day;
    }
    EXPECT_EQ(stored().at(2), "3|50|0|0|0|0|0|25");
    EXPECT_EQ(list().TextMatrix(1, KonkaiMeter), "60") << "the sheet stays";
}

TEST_F(ReadingSheet, TheDeleteAsksWithTheSafeAnswerFirst) {
    showMonth();
    clerk.answerConfirmRev(true);
    clerk.click("Btn(1)");
    EXPECT_EQ(clerk.lastSaid(), "この月度の検針を削除します。");
    clerk.expect("gyakuConfirm_frm", [this](QWidget& dialog) {
        EXPECT_EQ(clerk.text("OptBtn(0)") + clerk.text("OptBtn(1)"), "いいえ削除");
        dialog.close();
    });
    clerk.click("Btn(1)");
    EXPECT_EQ(list().Rows(), 5) << "refused twice";

    clerk.find<TextBox>("ebox(3)").SetText("1");
    clerk.answerConfirmRev(false);
    clerk.click("Btn(1)");
    EXPECT_EQ(storedCodes(), "1,2,3,4") << "no row of the store names its route";
    EXPECT_EQ(list().Rows(), 1);
    clerk.answerConfirmRev(false);
    clerk.click("Btn(1)");
    EXPECT_EQ(storedCodes(), "");
    EXPECT_EQ(storedCodes(3), "1,2,3");
}

TEST_F(ReadingSheet, TheSheetGoesToAWorkbook) {
    clerk.click("Btn(3)");  // nothing is shown, nothing asked
    showMonth({"", "", "", "1"});
    clerk.fill("62.3");
    const QTemporaryDir folder;
    clerk.expect("SaveAs_frm", [&](QWidget&) {
        clerk.find<TextBox>("Path").SetText(folder.filePath("a.xlsx"));
        clerk.click("Save");
    });
    clerk.click("Btn(3)");
    const Sheet sheet = ReadSheet(folder.filePath("a.xlsx"), "Sheet1");
    EXPECT_EQ(sheet.shownText({2, 4}), "検針入力一覧");
    EXPECT_EQ(sheet.shownText({4, 1}), "ルート : 1 : 北町     2023/4/10");
    EXPECT_EQ(sheet.shownText({7, 2}), "佐藤");
    EXPECT_EQ(sheet.cells.at({7, 8}).number, 5600);
}

TEST_F(ReadingSheet, AnotherScreenOpensItOnOneCustomer) {
    auto& sheet = Form::Instance<SlipG_frm>();
    sheet.fromexe(2023, 0, 2);
    EXPECT_EQ(storedCodes(), "");
    sheet.fromexe(2023, 13, 2);
    EXPECT_EQ(clerk.focusedName(), "ebox(1)") << "asked for, and no month of the year";
    sheet.fromexe(2023, 4, 2);
    EXPECT_EQ(box(0) + "/" + box(1) + "/" + box(4), "2023/4/2");
    EXPECT_EQ(storedCodes(), "2");
    EXPECT_EQ(clerk.focusedName(), "tBox");
}

TEST_F(ReadingSheet, TheEditorFollowsTheRowsOutOfTheWindow) {
    gDb->Execute("DELETE FROM Deal");
    for (int code = 1; code <= 60; ++code) {
        gDb->Execute(QString("INSERT INTO Deal(Code,Rte,TankaPtn) VALUES(%1,1,2)").arg(code));
    }
    showMonth();
    for (int code = 1; code < 50; ++code) {
        clerk.fill(QString::number(code));
    }
    EXPECT_EQ(list().Row(), 50);
    const QRect cell = list().CellRect();
    EXPECT_GT(list().TopRow(), 20);
    EXPECT_EQ(clerk.control("tBox").geometry(), cell.translated(list().pos()));
    list().SetTopRow(1);
    EXPECT_FALSE(clerk.control("tBox").isVisible()) << "no box floats over somebody else's row";
    EXPECT_EQ(list().TextMatrix(49, KonkaiMeter), "49");
}

TEST_F(ReadingSheet, MoreRowsThanASheetHoldsAreTheRunTimesError) {
    ScratchStore::run("DELETE FROM Deal;\nDELETE FROM Dgd;\nINSERT INTO Deal(Code) VALUES(1);\n");
    for (int rows = 1; rows < 32768; rows *= 2) {
        gDb->Execute(QString("INSERT INTO Deal(Code) SELECT Code+%1 FROM Deal").arg(rows));
    }
    gDb->Execute("INSERT INTO Dgd(Nendo,Getudo,Deal,KonkaiMeter) SELECT 2023,4,Code,5 FROM Deal");
    clerk.answerMsgBox();
    clerk.click("Command1");
    EXPECT_TRUE(clerk.lastSaid().startsWith("実行時エラー '6'"));
    EXPECT_EQ(list().Rows(), 1);
    EXPECT_EQ(clerk.focusedName(), "Command1");
    EXPECT_EQ(ScratchStore::rows("SELECT COUNT(*),SUM(KonkaiMeter) FROM Dgd"), QStringList{"32768|163840"});
}

}  // namespace
}  // namespace akarix
