#include "masters/GTanka_frm.h"

#include <QTemporaryDir>

#include "platform/forms/Choice.h"
#include "platform/forms/FlexGrid.h"
#include "platform/forms/TextBox.h"
#include "platform/sheet/SheetReader.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

enum { kMark = 0, kSt = 1, kShow = 5 };

class GasTariff : public ScreenTest {
 protected:
    void open() { OpenScreen<GTanka_frm>(); }
    void openWith(const QString& bands) {
        for (const QString& band : bands.split(u';')) {
            gDb->Execute(u"INSERT INTO GasKeisan(Ptn,St,Ed,Kihon,Tanka) VALUES("_qs + band + u")"_qs);
        }
        open();
    }
    static QStringList stored() {
        return ScratchStore::rows(u"SELECT Ptn,St,Ed,Kihon,Tanka FROM GasKeisan ORDER BY Ptn,St,Ed"_qs);
    }
    FlexGrid& grid(const char* name) { return clerk.find<FlexGrid>(QString(name)); }
    /// The rows of a grid without its head, cells joined by "|".
    QStringList rows(const char* name, int columns) {
        QStringList lines;
        for (int row = 1; row < grid(name).Rows(); ++row) {
            QStringList cells;
            for (int column = 0; column < columns; ++column) {
                cells += grid(name).TextMatrix(row, column);
            }
            lines += cells.join(u'|');
        }
        return lines;
    }
    QStringList bands() { return rows("ListK", 6); }
    /// Usage and first charge of each row of the price table.
    QStringList prices() { return rows("List", 2); }
    QString head() { return grid("List").TextMatrix(0, 1); }
    QString typed() {
        QStringList texts;
        for (int i = 0; i < 5; ++i) {
            texts += clerk.text(u"ebox(%1)"_qs.arg(i));
        }
        return texts.join(u'/');
    }
    /// Types the four boxes of a band, "st/ed/kihon/tanka", beginning in the first of them.
    void typeBand(const QString& band) {
        for (const QString& text : band.split(u'/')) {
            clerk.fill(text);
        }
    }
    void clickBand(int row, int column) { clerk.clickCell(grid("ListK"), row, column); }
    void press(int button) { clerk.click(u"Command(%1)"_qs.arg(button)); }
    void tick(const char* box) { clerk.click(QString(box)); }
    bool isTicked(const char* box) { return clerk.find<CheckBox>(QString(box)).Value() == 1; }

    ScratchStore store;
};

TEST_F(GasTariff, APatternIsTypedBandByBandAndSaved) {
    open();
    EXPECT_EQ(typed(), u"1////"_qs) << "an empty table begins at 1";
    clerk.enter();
    typeBand(u"0/8//300.5"_qs);
    EXPECT_EQ(clerk.focusedName(), u"Command(0)"_qs);
    clerk.enter();
    EXPECT_EQ(clerk.focusedName(), u"ebox(1)"_qs) << "ready for the next band";
    typeBand(u"9/99/1,500/280"_qs);
    clerk.enter();
    EXPECT_EQ(bands(), (QStringList{u"○|0|8||300.5|表示"_qs, u"○|9|99|1,500|280|表示"_qs}));
    press(2);
    EXPECT_EQ(stored(), (QStringList{u"1|0|8|0|300.5"_qs, u"1|9|99|1500|280"_qs}));
    EXPECT_EQ(typed(), u"2////"_qs);
    EXPECT_EQ(bands(), QStringList());
    EXPECT_EQ(clerk.focusedName(), u"ebox(0)"_qs);
}

TEST_F(GasTariff, LoadsByEnterAndByWalking) {
    openWith(u"2,10,20,700,5;2,0,9,500,10.25;5,0,1,1,1"_qs);
    EXPECT_EQ(typed(), u"6////"_qs);
    clerk.fill(u"2"_qs);
    EXPECT_EQ(bands(), (QStringList{u"○|0|9|500|10.25|表示"_qs, u"○|10|20|700|5|表示"_qs}));
    EXPECT_EQ(clerk.focusedName(), u"ebox(1)"_qs);
    clerk.click("cmdRight");
    EXPECT_EQ(typed(), u"5////"_qs);
    EXPECT_EQ(bands(), QStringList{u"○|0|1|1|1|表示"_qs});
    clerk.click("cmdLeft");
    EXPECT_EQ(bands().size(), 2);
    clerk.click("cmdLeft");
    EXPECT_EQ(typed(), u"6////"_qs) << "past the end the screen is clear";
    clerk.fill(u"3"_qs);
    EXPECT_EQ(bands(), QStringList()) << "a pattern without bands";
}

TEST_F(GasTariff, ClicksInTheBands) {
    openWith(u"1,0,9,500,10;1,10,20,700,5"_qs);
    clerk.fill(u"1"_qs);
    clickBand(0, kMark);
    clickBand(0, kShow);
    EXPECT_EQ(typed(), u"1////"_qs);
    for (const int column : {1, 2, 3, 4}) {
        clickBand(column % 2 + 1, column);
        EXPECT_EQ(typed(), column % 2 == 0 ? u"1/0/9/500/10"_qs : u"1/10/20/700/5"_qs) << column;
    }
    clickBand(2, kMark);
    clickBand(2, kShow);
    EXPECT_EQ(prices(), QStringList()) << "a band to be deleted is not shown";
    clickBand(2, kMark);
    clickBand(2, kShow);
    EXPECT_EQ(prices().size(), 11);
    EXPECT_EQ(prices().first(), u"10|700"_qs);
}

TEST_F(GasTariff, SaveDeletesChangesAndAdds) {
    openWith(u"1,0,9,500,10;1,10,20,700,5;1,21,30,800,4;3,0,9,1,1"_qs);
    clerk.fill(u"1"_qs);
    typeBand(u"10/20/710/6"_qs);  // known bounds: a change
    clerk.enter();
    typeBand(u"31/40/900/3"_qs);  // keyed twice: the later one counts
    clerk.enter();
    typeBand(u"31/40/950/2"_qs);
    clerk.enter();
    typeBand(u"50/40/1/1"_qs);  // upside down is the keeper's concern
    clerk.enter();
    typeBand(u"60/70/1/1"_qs);
    clerk.enter();
    clickBand(3, kMark);
    clickBand(8, kMark);  // never saved
    press(2);
    EXPECT_EQ(stored(), (QStringList{u"1|0|9|500|10"_qs, u"1|10|20|710|6"_qs, u"1|31|40|950|2"_qs,
                                     u"1|50|40|1|1"_qs, u"3|0|9|1|1"_qs}));
}

TEST_F(GasTariff, APatternWithoutBandsIsGone) {
    openWith(u"4,0,9,500,10"_qs);
    clerk.fill(u"4"_qs);
    clickBand(1, kMark);
    press(2);
    EXPECT_EQ(stored(), QStringList());
    EXPECT_EQ(typed(), u"1////"_qs);
}

TEST_F(GasTariff, SavesNothingWithoutPatternOrBands) {
    openWith(u"1,0,9,500,10"_qs);
    clerk.fill(u"7"_qs);
    press(2);
    EXPECT_EQ(typed(), u"7////"_qs) << "no bands: not even cleared";
    clerk.find<TextBox>(u"ebox(0)"_qs).SetText(u"0"_qs);
    press(0);
    press(2);
    EXPECT_EQ(bands().size(), 1);
    EXPECT_EQ(stored(), QStringList{u"1|0|9|500|10"_qs});
}

TEST_F(GasTariff, ADisplayReplacesTheTableUnlessItIsAdded) {
    openWith(u"1,0,1,500,10;1,2,3,700,5;1,4,5,900,4"_qs);
    clerk.fill(u"1"_qs);
    clickBand(1, kShow);
    EXPECT_EQ(prices(), (QStringList{u"0|500"_qs, u"1|510"_qs}));
    clickBand(2, kShow);
    EXPECT_EQ(prices(), (QStringList{u"2|700"_qs, u"3|705"_qs}));
    tick("Check1");
    clickBand(1, 1);
    press(1);
    EXPECT_EQ(prices(), (QStringList{u"2|700"_qs, u"3|705"_qs, u"0|500"_qs, u"1|510"_qs}));
    press(6);
    EXPECT_EQ(prices(), QStringList());
    EXPECT_FALSE(isTicked("Check1"));
    EXPECT_EQ(bands().size(), 3);

    clickBand(2, kMark);
    press(4);
    EXPECT_TRUE(isTicked("Check1"));
    EXPECT_EQ(prices(), (QStringList{u"0|500"_qs, u"1|510"_qs, u"4|900"_qs, u"5|904"_qs}));
    EXPECT_EQ(head(), u".0"_qs);
    press(3);
    EXPECT_FALSE(isTicked("Check1"));
    EXPECT_EQ(prices(), QStringList());
}

TEST_F(GasTariff, WholeUnitsRunOn) {
    openWith(u"1,0,14,1000,10;1,15,29,2000,1"_qs);
    clerk.fill(u"1"_qs);
    tick("Check2");
    press(4);
    EXPECT_EQ(head(), u"0"_qs);
    EXPECT_EQ(prices(), (QStringList{u"0|1,000"_qs, u"10|1,100"_qs, u"20|2,020"_qs}));
    EXPECT_EQ(grid("List").TextMatrix(2, 6), u"2,015"_qs);
    press(6);
    clickBand(1, kShow);
    clickBand(2, kShow);
    EXPECT_EQ(prices().size(), 3) << "one by one they run on as well";
    press(3);
    EXPECT_FALSE(isTicked("Check2"));
    EXPECT_EQ(head(), u".0"_qs);
}

TEST_F(GasTariff, TypedFiguresAreReadLoosely) {
    open();
    clerk.enter();
    typeBand(u"1/1/1,000yen/"_qs);
    press(1);
    EXPECT_EQ(prices(), QStringList{u"1|1,000"_qs});
    clerk.find<TextBox>(u"ebox(2)"_qs).SetText(u"70000"_qs);
    clerk.answerMsgBox();
    press(1);
    EXPECT_TRUE(clerk.lastSaid().startsWith(u"実行時エラー '6'"_qs));
}

TEST_F(GasTariff, ExportsTheTable) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("t.xlsx");
    openWith(u"2,0,1,500,10"_qs);
    clerk.fill(u"2"_qs);
    press(5);  // nothing in the table: nobody is asked for a file
    clickBand(1, kShow);
    clerk.expect("SaveAs_frm", [&](QWidget&) {
        clerk.find<TextBox>("Path").SetText(path);
        clerk.click("Save");
    });
    press(5);
    const Sheet sheet = ReadSheet(path, "Sheet1");
    EXPECT_EQ(sheet.shownText({2, 5}), u"ガス料金表"_qs);
    EXPECT_EQ(sheet.shownText({4, 1}).trimmed(), u"パターン : 2"_qs);
    EXPECT_EQ(sheet.shownText({6, 2}), u".0"_qs);
    EXPECT_EQ(sheet.shownText({8, 11}), u"519"_qs);
}

TEST_F(GasTariff, OpensTheCalculator) {
    open();
    clerk.click("Command1");
    EXPECT_TRUE(clerk.isOpen(u"電卓"_qs));
}

}  // namespace
}  // namespace akarix
