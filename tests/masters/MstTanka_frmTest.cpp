#include "masters/MstTanka_frm.h"

#include <QListWidget>
#include <QTemporaryDir>

#include "platform/forms/FlexGrid.h"
#include "platform/forms/TextBox.h"
#include "platform/jet/Action.h"
#include "platform/print/PdfText.h"
#include "platform/sheet/SheetReader.h"
#include "store/Settings.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

class CapacityPrices : public ScreenTest {
 protected:
    void open() {
        OpenScreen<MstTanka_frm>();
        clerk.settle();
    }
    /// Rows "Ptn,Capa,Tanka,Kubun".
    static void insert(const QString& rows) {
        const Action all;
        for (const QString& row : rows.split(u';')) {
            gDb->Execute(u"INSERT INTO Tnk(Ptn,Capa,Tanka,Kubun) VALUES("_qs + row + u")"_qs);
        }
    }
    static QStringList stored() {
        return ScratchStore::rows(u"SELECT Ptn,Capa,Tanka,Kubun FROM Tnk ORDER BY Ptn,Capa"_qs);
    }
    FlexGrid& grid() { return clerk.find<FlexGrid>(u"List"_qs); }
    /// The prices of the grid as "row,column price".
    QStringList prices() {
        QStringList found;
        for (int row = 1; row < grid().Rows(); ++row) {
            for (int column = 1; column < grid().Cols(); ++column) {
                const QString text = grid().TextMatrix(row, column);
                if (!text.isEmpty()) found += u"%1,%2 %3"_qs.arg(row).arg(column).arg(text);
            }
        }
        return found;
    }
    void press(int button) { clerk.click(u"Btn(%1)"_qs.arg(button)); }
    bool isPrivate() { return clerk.find<OptionButton>(u"Opt(1)"_qs).Value(); }

    ScratchStore store;
};

TEST_F(CapacityPrices, TheGridHasTheShapeOfItsKind) {
    open();
    struct Case {
        const char* option;
        int rows;
        const char16_t* head;
        const char16_t* second;
        const char16_t* last;
    };
    for (const Case& c :
         {Case{"Opt(1)", 110, u".9", u"1", u"108"}, Case{"Opt(0)", 41, u"9", u"10", u"390"}}) {
        grid().SetTextMatrix(1, 1, u"5"_qs);
        clerk.click(QString(c.option));
        EXPECT_EQ(grid().Rows(), c.rows);
        EXPECT_EQ(grid().TextMatrix(0, 10), QString::fromUtf16(c.head));
        EXPECT_EQ(grid().TextMatrix(2, 0), QString::fromUtf16(c.second));
        EXPECT_EQ(grid().TextMatrix(c.rows - 1, 0), QString::fromUtf16(c.last));
        EXPECT_EQ(prices(), QStringList()) << "another kind begins empty";
    }
}

TEST_F(CapacityPrices, AColumnOfPricesIsKeyedInALoop) {
    open();
    clerk.fill(u"3"_qs);
    EXPECT_EQ(clerk.focusedName(), u"ebox(1)"_qs);
    for (const char16_t* typed : {u"0/1,500", u"250/9800", u"399/12000.5", u"8/0"}) {
        for (const QString& text : QString::fromUtf16(typed).split(u'/')) {
            clerk.fill(text);
        }
        EXPECT_EQ(clerk.focusedName(), u"ebox(1)"_qs);
    }
    EXPECT_EQ(prices(), (QStringList{u"1,1 1,500"_qs, u"26,1 9,800"_qs, u"40,10 12,001"_qs}));
    press(2);
    EXPECT_EQ(stored(), (QStringList{u"3|0|1500|1"_qs, u"3|250|9800|1"_qs, u"3|399|12001|1"_qs}));
    EXPECT_EQ(clerk.text("ebox(0)"), QString());
    EXPECT_EQ(prices(), QStringList());
    EXPECT_EQ(clerk.focusedName(), u"ebox(0)"_qs);
}

TEST_F(CapacityPrices, TenthsOfAPrivatePattern) {
    insert(u"2,12.3,600,2;2,.4,100,2;2,59.9,5000,2;1,12,77,1"_qs);
    open();
    clerk.fill(u"1"_qs);
    EXPECT_EQ(prices(), QStringList{u"2,3 77"_qs});
    clerk.up();
    clerk.fill(u"2"_qs);
    EXPECT_TRUE(isPrivate());
    EXPECT_EQ(prices(), (QStringList{u"1,5 100"_qs, u"13,4 600"_qs, u"60,10 5,000"_qs}));
    clerk.fill(u"40.5"_qs);
    clerk.fill(u"4050"_qs);
    press(2);
    EXPECT_EQ(stored(), (QStringList{u"1|12|77|1"_qs, u"2|0.4|100|2"_qs, u"2|12.3|600|2"_qs,
                                     u"2|40.5|4050|2"_qs, u"2|59.9|5000|2"_qs}));
    clerk.click(u"Opt(1)"_qs);
    clerk.click(u"ebox(0)"_qs);
    clerk.fill(u"9"_qs);
    EXPECT_TRUE(isPrivate()) << "a new pattern leaves the kind alone";
    EXPECT_EQ(prices(), QStringList());
}

// Whatever else the grid says, what is stored stays, but for the capacity in the box.
TEST_F(CapacityPrices, OnlyTheCapacityInTheBoxChanges) {
    insert(u"1,10,100,1;1,20,200,1;1,30,300,1"_qs);
    open();
    clerk.fill(u"1"_qs);
    for (const char* text : {"10", "111", "20", "0", "30", "333"}) {
        clerk.fill(QString(text));
    }
    press(2);
    EXPECT_EQ(stored(), (QStringList{u"1|10|100|1"_qs, u"1|20|200|1"_qs, u"1|30|333|1"_qs}));
    clerk.fill(u"1"_qs);
    clerk.fill(u"20"_qs);
    clerk.fill(u"0"_qs);
    clerk.fill(u"20"_qs);
    press(2);
    EXPECT_EQ(stored(), (QStringList{u"1|10|100|1"_qs, u"1|30|333|1"_qs})) << "a price of 0 has no row";
    clerk.fill(u"1"_qs);
    press(2);
    EXPECT_EQ(stored().size(), 2) << "no capacity in the box: nothing changes";
    EXPECT_EQ(clerk.said(), QStringList());
}

TEST_F(CapacityPrices, ACapacityOutsideIsToldAndTaken) {
    open();
    clerk.fill(u"1"_qs);
    clerk.click(u"Opt(1)"_qs);
    clerk.click(u"ebox(1)"_qs);
    clerk.fill(u"60"_qs);
    clerk.answerAlert();
    clerk.fill(u"7"_qs);
    EXPECT_EQ(clerk.lastSaid(), u"数量が正しくありません。"_qs);
    EXPECT_EQ(clerk.focusedName(), u"ebox(1)"_qs);
    EXPECT_EQ(prices(), QStringList{u"61,1 7"_qs});
    struct Case {
        const char* capacity;
        int error;
    };
    for (const Case& c : {Case{"109", 381}, Case{"-20", 381}}) {
        clerk.press(Qt::Key_A, Qt::ControlModifier);
        clerk.fill(QString(c.capacity));
        clerk.answerAlert();
        clerk.answerMsgBox();
        clerk.fill(u"8"_qs);
        EXPECT_TRUE(clerk.lastSaid().startsWith(u"実行時エラー '%1'"_qs.arg(c.error))) << c.capacity;
        EXPECT_EQ(clerk.focusedName(), u"ebox(1)"_qs);
    }
    clerk.press(Qt::Key_A, Qt::ControlModifier);
    clerk.fill(u"59.9"_qs);
    clerk.fill(u"9"_qs);
    press(2);
    EXPECT_EQ(stored(), QStringList{u"1|59.9|9|2"_qs}) << "the rows below are not kept";
}

TEST_F(CapacityPrices, WithoutAPatternNothingIsSaved) {
    open();
    clerk.enter();
    clerk.fill(u"5"_qs);
    clerk.fill(u"50"_qs);
    for (const int button : {2, 3}) {
        clerk.answerAlert();
        press(button);
        EXPECT_EQ(clerk.lastSaid(), u"パターンが不正です。"_qs);
        EXPECT_EQ(clerk.focusedName(), u"ebox(0)"_qs);
        EXPECT_EQ(prices().size(), 1) << "what was typed stands";
    }
    EXPECT_EQ(stored(), QStringList());
}

TEST_F(CapacityPrices, DeletesAPattern) {
    insert(u"1,10,100,1;2,10,100,1"_qs);
    open();
    clerk.fill(u"2"_qs);
    for (const bool yes : {false, true}) {
        clerk.answerConfirm(yes);
        press(1);
        EXPECT_EQ(clerk.lastSaid(), u"この単価パターンを削除します。"_qs);
        EXPECT_EQ(stored().size(), yes ? 1 : 2);
    }
    EXPECT_EQ(prices(), QStringList());
}

TEST_F(CapacityPrices, ExportsTheGrid) {
    const QTemporaryDir folder;
    insert(u"4,12.3,1234,2"_qs);
    open();
    clerk.fill(u"4"_qs);
    const QString path = folder.filePath(u"t.xlsx"_qs);
    clerk.expect("SaveAs_frm", [&](QWidget&) {
        clerk.find<TextBox>("Path").SetText(path);
        clerk.click("Save");
    });
    press(4);
    const Sheet sheet = ReadSheet(path, "Sheet1");
    EXPECT_EQ(sheet.shownText({2, 5}), u"単価表"_qs);
    EXPECT_EQ(sheet.shownText({4, 1}), u"条件 : パターン : 4     個人向け"_qs);
    EXPECT_EQ(sheet.shownText({6, 5}), u".3"_qs);
    EXPECT_EQ(sheet.shownText({19, 5}), u"1,234"_qs);
}

class PriceListOnPaper : public CapacityPrices {
 protected:
    void SetUp() override {
        ASSERT_TRUE(QFile::link(QStringLiteral(AKARIX_SOURCE_DIR "/Prt"), store.path(u"Prt"_qs)));
        gPrintPreview = false;
    }
    /// Prints the pattern; each page is a document of its own. Gives their texts.
    QStringList print(const QString& pattern) {
        open();
        clerk.fill(pattern);
        clerk.expect(u"Printer_frm"_qs, [this](QWidget&) {
            auto& printers = clerk.find<QListWidget>("Printers");
            printers.setCurrentRow(printers.count() - 1);
            clerk.find<TextBox>("Path").SetText(store.path(u"list.pdf"_qs));
            clerk.click("Print");
        });
        press(3);
        QStringList pages;
        for (const QString& file : {u"list.pdf"_qs, u"list (2).pdf"_qs, u"list (3).pdf"_qs}) {
            if (!QFile::exists(store.path(file))) break;
            pages += PdfPages(store.path(file));
            QFile::remove(store.path(file));
        }
        return pages;
    }
    /// The row labels and prices of a page, read line by line.
    static QString table(const QString& page) {
        const qsizetype from = page.indexOf(u"0123456789"_qs) + 10;
        return page.mid(from, page.indexOf(u"上の見出し"_qs) - from);
    }
};

TEST_F(PriceListOnPaper, EachKindFillsItsPages) {
    insert(u"1,0,900,1;1,9,901,1;1,199,902,1;1,250,903,1;2,.1,800,2;2,12.3,801,2;2,20,802,2;2,59.9,803,2"_qs);
    const QStringList whole = print(u"1"_qs);
    ASSERT_EQ(whole.size(), 2);
    EXPECT_EQ(table(whole[0]), u"0900901102030405060708090100110120130140150160170180190902"_qs);
    EXPECT_EQ(table(whole[1]), u"200210220230240250903260270280290300310320330340350360370380390"_qs);
    EXPECT_TRUE(whole[0].contains(u"パターン1"_qs));
    EXPECT_EQ(clerk.text("ebox(0)"), QString()) << "and the screen is cleared";

    const QStringList tenths = print(u"2"_qs);
    ASSERT_EQ(tenths.size(), 3);
    EXPECT_EQ(table(tenths[0]), u"08001234567891011128011314151617181 9"_qs.remove(u' '));
    EXPECT_EQ(table(tenths[1]), u"208022122232425262728293031323334353637383 9"_qs.remove(u' '));
    EXPECT_EQ(table(tenths[2]), u"404142434445464748495051525354555657585 9803"_qs.remove(u' '));
}

TEST_F(PriceListOnPaper, PrintingSavesAndMayBeCancelled) {
    open();
    clerk.fill(u"6"_qs);
    clerk.fill(u"15"_qs);
    clerk.fill(u"1500"_qs);
    clerk.expect(u"Printer_frm"_qs, [this](QWidget&) { clerk.press(Qt::Key_Escape); });
    press(3);
    EXPECT_EQ(stored(), QStringList{u"6|15|1500|1"_qs});
    EXPECT_EQ(clerk.text("ebox(0)"), QString());
    clerk.fill(u"7"_qs);
    press(3);
    EXPECT_EQ(clerk.text("ebox(0)"), QString()) << "nothing is stored: no printer is asked for";
    EXPECT_EQ(clerk.said().size(), 1) << "the printer dialog alone";
}

}  // namespace
}  // namespace akarix
