#include "masters/MstDeal_frm.h"

#include <QListWidget>

#include "platform/forms/FlexGrid.h"
#include "platform/print/PdfText.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

class CustomerMaster : public ScreenTest {
 protected:
    void open() { OpenScreen<MstDeal_frm>(); }
    static void insert(const QString& columns, const QString& values) {
        gDb->Execute(u"INSERT INTO Deal("_qs + columns + u") VALUES("_qs + values + u")"_qs);
    }
    static QStringList codes() { return ScratchStore::rows(u"SELECT Code FROM Deal ORDER BY Code"_qs); }
    QString box(int index) { return clerk.text(u"ebox(%1)"_qs.arg(index)); }
    /// The texts of some boxes, joined by "/".
    QString boxes(std::initializer_list<int> indexes) {
        QStringList texts;
        for (const int index : indexes) {
            texts += box(index);
        }
        return texts.join(u'/');
    }
    void put(int index, const QString& text) { clerk.find<TextBox>(u"ebox(%1)"_qs.arg(index)).SetText(text); }
    /// Presses Enter in a box.
    void enterIn(int index) {
        clerk.find<TextBox>(u"ebox(%1)"_qs.arg(index)).setFocus();
        clerk.enter();
    }
    void press(int button) { clerk.click(u"Btn(%1)"_qs.arg(button)); }
    void load(const QString& code) {
        put(0, code);
        enterIn(0);
    }

    ScratchStore store;
};

TEST_F(CustomerMaster, ANewCustomerIsTypedThroughToSave) {
    ScratchStore::run(
        u"INSERT INTO Rte(Code,Kana,Namae) VALUES(2,'ﾐﾅﾐ','南町');\n"
        u"INSERT INTO Zip7(Code,Addr) VALUES(1500001,'東京都渋谷区神宮前')"_qs);
    open();
    EXPECT_EQ(boxes({0, 9}), u"1/31"_qs) << "the first code, the default closing day";
    clerk.enter();
    clerk.fill(u"2"_qs);
    EXPECT_EQ(clerk.text("sRte"), u"南町"_qs);
    clerk.fill(u"ﾔﾏﾀﾞ ﾀﾛｳ"_qs);
    clerk.fill(u"山田太郎"_qs);
    clerk.enter();
    EXPECT_EQ(box(3), u"山田太郎"_qs) << "the short name is the name";
    clerk.fill(u"150-0001"_qs);
    EXPECT_EQ(box(5), u"東京都渋谷区神宮前"_qs);
    clerk.enter();
    clerk.fill(u"一丁目"_qs);
    clerk.fill(u"03-1111-2222"_qs);
    for (const char* text : {"", "20", "1", "15", "7", "3"}) {
        clerk.fill(QString(text));
    }
    EXPECT_EQ(clerk.focusedName(), u"ebox(14)"_qs);
    EXPECT_EQ(box(14), u"10"_qs) << "the first place of the round";
    for (const char* text : {"", "2", "5", "12", "1", "0123456", "3,500"}) {
        clerk.fill(QString(text));
    }
    EXPECT_EQ(clerk.focusedName(), u"Btn(2)"_qs);
    clerk.click("ChkKeihou");
    press(2);
    EXPECT_EQ(ScratchStore::rows(u"SELECT * FROM Deal"_qs).size(), 1);
    EXPECT_EQ(
        ScratchStore::rows(u"SELECT Code,Rte,Kana,Namae,Ryaku,Yubin,Addr1,Addr2,TEL,Fax FROM Deal"_qs),
        QStringList{u"1|2|ﾔﾏﾀﾞ ﾀﾛｳ|山田太郎|山田太郎|150-0001|東京都渋谷区神宮前|一丁目|03-1111-2222| "_qs});
    EXPECT_EQ(ScratchStore::rows(u"SELECT Sime,SH,Map,Sisetu,Simekiri,Haisou,TankaPtn,Bnk,Stn,Kind,Koza,"
                                 "DiscGaku,ACU,Keihou,NoSeikyu FROM Deal"_qs),
              QStringList{u"20|1|15|7|3|10|2|5|12|1|0123456|3500|0|1|0"_qs});
    EXPECT_EQ(boxes({0, 2, 9, 14}), u"2//31/"_qs) << "ready for the next one";
    EXPECT_EQ(clerk.find<CheckBox>("ChkKeihou").Value(), 0);
    EXPECT_EQ(clerk.text("sRte"), u""_qs);
}

TEST_F(CustomerMaster, FieldsAreShownByTheirOwnRules) {
    struct Case {
        const char* values;  // Bnk,Stn,Kind,DiscGaku
        const char16_t* shown;
    };
    const std::vector<Case> cases = {
        {"0,0,0,0", u"/000//"},
        {"5,5,1,1200", u"0005/005/1/1200"},
        {"9900,12,2,0.5", u"9900/012/2/0.5"},
        {"123,345,0,0", u"0123/345//"},
        {"1,12345,1,0", u"0001/12345/1/"},
        {"Null,Null,Null,Null", u"///"},
    };
    open();
    int code = 0;
    for (const Case& c : cases) {
        const QString number = QString::number(++code);
        insert(u"Code,Bnk,Stn,Kind,DiscGaku"_qs, number + u',' + QString(c.values));
        load(number);
        EXPECT_EQ(boxes({16, 17, 18, 23}), QString::fromUtf16(c.shown)) << c.values;
    }
}

TEST_F(CustomerMaster, LoadsTicksAndTheRoutesName) {
    ScratchStore::run(u"INSERT INTO Rte(Code,Kana,Namae) VALUES(2,'ﾐﾅﾐ','南町')"_qs);
    insert(u"Code,Rte,Namae,ACU,NoSeikyu"_qs, u"4,2,'山田',1,1"_qs);
    insert(u"Code,Rte,Namae"_qs, u"6,0,'森'"_qs);
    const auto ticks = [this] {
        QString values;
        for (const char* name : {"ChkACU", "ChkKeihou", "ChkNoSeikyu"}) {
            values += QString::number(clerk.find<CheckBox>(QString(name)).Value());
        }
        return values;
    };
    open();
    load(u"4"_qs);
    EXPECT_EQ(clerk.text("sRte"), u"南町"_qs);
    EXPECT_EQ(ticks(), u"101"_qs);
    EXPECT_EQ(clerk.focusedName(), u"ebox(22)"_qs);
    clerk.click("cmdRight");
    EXPECT_EQ(boxes({0, 2}), u"6/森"_qs);
    EXPECT_EQ(ticks(), u"000"_qs);
    EXPECT_EQ(clerk.text("sRte").trimmed(), u""_qs);
    clerk.click("cmdRight");
    EXPECT_EQ(boxes({0, 2, 9}), u"7//31"_qs) << "past the last one: a new customer";
    clerk.click("cmdLeft");
    clerk.click("cmdLeft");
    EXPECT_EQ(box(0), u"4"_qs);
    clerk.click("cmdLeft");
    EXPECT_EQ(boxes({0, 2}), u"7/"_qs);
}

TEST_F(CustomerMaster, AnUnknownCodeIsANewCustomer) {
    insert(u"Code,Namae,Haisou,ACU,Sime"_qs, u"4,'山田',50,1,10"_qs);
    open();
    load(u"4"_qs);
    load(u"90"_qs);
    EXPECT_EQ(boxes({0, 2, 9, 14}), u"90//31/"_qs);
    press(2);
    EXPECT_EQ(ScratchStore::rows(u"SELECT Code,Namae,Haisou,ACU FROM Deal ORDER BY Code"_qs),
              (QStringList{u"4|山田|50|1"_qs, u"90| |0|0"_qs}))
        << "nothing but the code is asked for";
    EXPECT_EQ(box(0), u"91"_qs);
    put(0, u"x"_qs);
    clerk.answerAlert();
    press(2);
    EXPECT_EQ(clerk.lastSaid(), u"コード番号は不正です。"_qs);
    EXPECT_EQ(clerk.focusedName(), u"ebox(0)"_qs);
    EXPECT_EQ(codes().size(), 2);
}

TEST_F(CustomerMaster, AKnownCustomerIsChanged) {
    insert(u"Code,Namae,Koza,Stn,Fax"_qs, u"4,'山田','123',5,'03'"_qs);
    open();
    load(u"4"_qs);
    put(9, u"99"_qs);
    put(8, {});
    put(2, u"山田花子"_qs);
    press(2);
    EXPECT_EQ(ScratchStore::rows(u"SELECT Code,Namae,Koza,Stn,Fax,Sime FROM Deal"_qs),
              QStringList{u"4|山田花子|123|5| |99"_qs});
}

TEST_F(CustomerMaster, ThePlaceOnTheRoundFollowsTheHighestOfAllRoutes) {
    insert(u"Code,Rte,Haisou"_qs, u"1,1,30"_qs);
    insert(u"Code,Rte,Haisou"_qs, u"2,9,500"_qs);
    open();
    put(22, u"1"_qs);
    enterIn(13);
    EXPECT_EQ(box(14), u"510"_qs);
    EXPECT_EQ(clerk.find<TextBox>("ebox(14)").SelLength(), 3) << "typing replaces it";
    clerk.fill(u"35"_qs);
    clerk.up();
    EXPECT_EQ(box(14), u"35"_qs) << "a typed place stays";
}

TEST_F(CustomerMaster, FilledFieldsAreNotOverwritten) {
    ScratchStore::run(u"INSERT INTO Zip7(Code,Addr) VALUES(1500001,'東京都渋谷区神宮前')"_qs);
    open();
    put(2, u"山田太郎"_qs);
    put(3, u"山田"_qs);
    put(4, u"1500001"_qs);
    put(5, u"渋谷"_qs);
    enterIn(3);
    enterIn(4);
    EXPECT_EQ(boxes({3, 5}), u"山田/渋谷"_qs);
    put(5, {});
    put(4, u"999-9999"_qs);
    enterIn(4);
    EXPECT_EQ(box(5), u""_qs);
}

TEST_F(CustomerMaster, DocumentsKeepACustomerFromDeletion) {
    insert(u"Code,Namae"_qs, u"4,'山田'"_qs);
    ScratchStore::run(
        u"INSERT INTO Dud(Dno,Eda,Deal) VALUES(1,1,4);\n"
        u"INSERT INTO Dgd(Deal,Nendo,Getudo) VALUES(4,2023,4);\n"
        u"INSERT INTO Dny(Dno,Eda,Deal) VALUES(1,1,4);\n"
        u"INSERT INTO TtoD(Deal,Nendo,Getudo) VALUES(4,2023,4)"_qs);
    open();
    put(0, u"0"_qs);
    press(1);
    EXPECT_EQ(clerk.said(), QStringList()) << "no code, no question";
    load(u"4"_qs);
    clerk.answerConfirm(false);
    press(1);
    EXPECT_EQ(clerk.lastSaid(), u"この取引先を削除します。"_qs);
    for (const auto& [table, message] : {std::pair{u"Dud"_qs, u"売上データが有ります。"_qs},
                                         {u"Dgd"_qs, u"検針データが有ります。"_qs},
                                         {u"Dny"_qs, u"入金データが有ります。"_qs}}) {
        clerk.answerConfirm(true);
        clerk.answerAlert();
        press(1);
        EXPECT_EQ(clerk.lastSaid(), message);
        EXPECT_EQ(codes().size(), 1);
        gDb->Execute(u"DELETE FROM "_qs + table);
    }
    clerk.answerConfirm(true);
    press(1);
    EXPECT_EQ(codes(), QStringList());
    EXPECT_EQ(ScratchStore::rows(u"SELECT Deal FROM TtoD"_qs), QStringList{u"4"_qs})
        << "the ledger outlives the customer";
    EXPECT_EQ(box(0), u"1"_qs);
}

TEST_F(CustomerMaster, LookupsFillTheirOwnBoxes) {
    insert(u"Code,Namae,Kana"_qs, u"4,'山田','ﾔﾏﾀﾞ'"_qs);
    ScratchStore::run(u"INSERT INTO Bnk(Code,BkName) VALUES(5,'北銀行')"_qs);
    open();
    const auto pick = [this](int picture, const char* dialog, int row) {
        clerk.expect(QString(dialog), [this, row](QWidget& shown) {
            if (shown.objectName() == u"HelpDeal_frm"_qs) clerk.click("Btn(0)");
            clerk.clickCell(clerk.find<FlexGrid>("List"), row, 1);
        });
        clerk.click(u"F6(%1)"_qs.arg(picture));
    };
    pick(1, "HelpDeal_frm", 1);
    EXPECT_EQ(box(20) + clerk.text("sNamaeS"), u"4山田"_qs);
    pick(2, "HelpDeal_frm", 1);
    EXPECT_EQ(box(21) + clerk.text("sNamaeE"), u"4山田"_qs);
    pick(4, "Help_frm", 0);
    EXPECT_EQ(clerk.text("eSearchBnk"), u"0005"_qs);
    pick(0, "HelpDeal_frm", 1);
    EXPECT_EQ(boxes({0, 2}), u"4/山田"_qs);
    press(0);
    EXPECT_EQ(clerk.text("sNamaeS") + clerk.text("sNamaeE") + clerk.text("eSearchBnk"), u""_qs);
}

class CustomerList : public CustomerMaster {
 protected:
    void SetUp() override {
        ASSERT_TRUE(QFile::link(QStringLiteral(AKARIX_SOURCE_DIR "/Prt"), store.path(u"Prt"_qs)));
        gPrintPreview = false;
    }
    /// Prints into a new file, and gives the text of its pages.
    QStringList print() {
        const QString path = store.path(u"list%1.pdf"_qs.arg(++lists_));
        clerk.expect(u"Printer_frm"_qs, [this, path](QWidget&) {
            auto& printers = clerk.find<QListWidget>("Printers");
            printers.setCurrentRow(printers.count() - 1);
            clerk.find<TextBox>("Path").SetText(path);
            clerk.click("Print");
        });
        press(3);
        return QFile::exists(path) ? PdfPages(path) : QStringList();
    }
    static void insertMany(int count) {
        for (int i = 1; i <= count; ++i) {
            insert(u"Code,Namae"_qs, u"%1,'客%1番'"_qs.arg(i));
        }
    }

 private:
    int lists_ = 0;
};

TEST_F(CustomerList, ShowsAddressesInTheOrderOfTheRound) {
    insert(u"Code,Rte,Haisou,Kana,Namae,Yubin,Addr1,Addr2,TEL,Fax"_qs,
           u"1,2,10,'ﾔﾏﾀﾞ','山田','150-0001','渋谷区','神宮前','03-1','03-2'"_qs);
    insert(u"Code,Rte,Haisou,Namae,Bnk,Stn,Koza"_qs, u"2,1,20,'森',5,7,'12345'"_qs);
    insert(u"Code,Rte,Haisou,Namae,Bnk"_qs, u"3,1,10,'林',9"_qs);
    open();
    const QStringList all = print();
    ASSERT_EQ(all.size(), 1);
    EXPECT_TRUE(all[0].contains(u"1ﾔﾏﾀﾞ山田150-0001渋谷区神宮前03-103-2"_qs)) << all[0].toStdString();
    EXPECT_LT(all[0].indexOf(u"3林"_qs), all[0].indexOf(u"2森"_qs));
    EXPECT_LT(all[0].indexOf(u"2森"_qs), all[0].indexOf(u"山田"_qs));
    EXPECT_FALSE(all[0].contains(u"口座番号"_qs));

    clerk.find<TextBox>("eSearchBnk").SetText(u"5"_qs);
    const QStringList bank = print();
    ASSERT_EQ(bank.size(), 1);
    for (const QString& text : {u"銀行-支店"_qs, u"口座番号"_qs, u"2森0005-0070012345"_qs}) {
        EXPECT_TRUE(bank[0].contains(text)) << bank[0].toStdString();
    }
    EXPECT_FALSE(bank[0].contains(u"林"_qs) || bank[0].contains(u"山田"_qs));
}

TEST_F(CustomerList, TheFirstBoxAloneBoundsIt) {
    insertMany(3);
    open();
    put(20, u"2"_qs);
    put(21, u"3"_qs);
    QString list = print().join(u'|');
    EXPECT_TRUE(list.contains(u"客2番"_qs) && !list.contains(u"客3番"_qs) && !list.contains(u"客1番"_qs))
        << list.toStdString();
    put(20, {});
    list = print().join(u'|');
    EXPECT_TRUE(list.contains(u"客1番"_qs) && list.contains(u"客3番"_qs)) << list.toStdString();
    put(20, u"77"_qs);
    EXPECT_EQ(print(), QStringList()) << "nobody: no page";
}

TEST_F(CustomerList, HoldsFiftyEightToAPage) {
    insertMany(58);
    open();
    QStringList pages = print();
    ASSERT_EQ(pages.size(), 1);
    EXPECT_TRUE(pages[0].contains(u"客58番"_qs));
    insert(u"Code,Namae"_qs, u"59,'客59番'"_qs);
    pages = print();
    ASSERT_EQ(pages.size(), 2);
    EXPECT_TRUE(pages[1].contains(u"客59番"_qs) && !pages[1].contains(u"客58番"_qs));
}

TEST_F(CustomerList, ACancelledDialogEndsItWithoutAWord) {
    insertMany(1);
    open();
    clerk.expect(u"Printer_frm"_qs, [this](QWidget&) { clerk.press(Qt::Key_Escape); });
    press(3);
    EXPECT_EQ(clerk.said().size(), 1) << "the dialog alone";
}

}  // namespace
}  // namespace akarix
