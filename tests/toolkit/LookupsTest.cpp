#include "toolkit/Lookups.h"

#include <QHBoxLayout>

#include "platform/runtime/Literals.h"
#include "store/dbAccess.h"
#include "support/GridText.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"
#include "toolkit/EntryForm.h"

namespace akarix {
namespace {

/// A screen with one code field and its lookup.
class Caller : public EntryForm {
 public:
    explicit Caller(const QString& table) : EntryForm(u"Caller"_s, u"伝票"_s) {
        auto* layout = new QHBoxLayout(this);
        for (int i = 0; i < 2; ++i) {
            layout->addWidget(&addBox(i));
            SetTabIndex(&ebox(i), i);
        }
        layout->addWidget(&addLookup(0, table, 0));
    }
    bool enter(int index) override {
        entered += index;
        return true;
    }
    using EntryForm::ebox;
    QList<int> entered;
};

class Lookups : public ScreenTest {
 protected:
    Lookups() {
        insert(
            "Rte(Code,Kana,Namae) VALUES(1,'ｷﾀ','北町'),(2,'ﾐﾅﾐ','南町'),(3,'ｱｵﾊﾞ','青葉'),(0,'ｱ','なし')");
        insert(
            "Deal(Code,Rte,Haisou,Kana,Namae,TEL) "
            "VALUES(11,1,20,'ﾔﾏﾀﾞ','山田','03-1'),(12,1,10,'ｻﾄｳ','佐藤','03-2'),(13,2,30,'ﾔﾏｼﾀ','山下',' ')");
    }
    static void insert(const QString& rows) { ScratchStore::run("INSERT INTO " + rows); }

    FlexGrid& list() { return clerk.find<FlexGrid>(u"List"_s); }
    QStringList column(int col) { return GridRows(list(), col, col); }
    /// What `look` sees in the dialog, which it leaves open for the close box.
    void inDialog(const QString& name, std::function<void()> look) {
        clerk.expect(name, [this, look = std::move(look)](QWidget& dialog) {
            look();
            if (dialog.isVisible()) clerk.closeBox(dialog);
        });
    }

    ScratchStore store;
};

TEST_F(Lookups, APickIsATypedCodeAndEnter) {
    Caller caller(u"Rte"_s);
    caller.Show();
    clerk.expect(u"Help_frm"_s, [this](QWidget&) {
        EXPECT_EQ(column(1), (QStringList{u"なし"_s, u"青葉"_s, u"北町"_s, u"南町"_s}));
        clerk.clickCell(list(), 2, 1);
    });
    clerk.click(u"F6(0)"_s);
    EXPECT_EQ(caller.ebox(0).Text(), u"1"_s);
    EXPECT_EQ(caller.entered, QList<int>{0});
    EXPECT_EQ(clerk.focusedName(), u"ebox(1)"_s);

    inDialog(u"Help_frm"_s, [] {});
    clerk.click(u"F6(0)"_s);
    EXPECT_EQ(caller.ebox(0).Text(), u"1"_s) << "the close box leaves the field";
    EXPECT_EQ(caller.entered, QList<int>{0});
}

TEST_F(Lookups, SearchesByReadingAndName) {
    inDialog(u"Help_frm"_s, [this] {
        clerk.fill(u""_s);
        EXPECT_EQ(clerk.focusedName(), u"ebox(1)"_s);
        clerk.enter();
        EXPECT_EQ(clerk.focusedName(), u"Btn(0)"_s);
        clerk.enter();
        EXPECT_EQ(column(0), (QStringList{u"1"_s, u"2"_s, u"3"_s})) << "by code, without code 0";
        clerk.find<TextBox>(u"ebox(0)"_s).SetText(u"ﾐ"_s);
        clerk.click(u"Btn(0)"_s);
        EXPECT_EQ(column(1), QStringList{u"南町"_s}) << "anywhere in the word";
        clerk.find<TextBox>(u"ebox(0)"_s).SetText({});
        clerk.find<TextBox>(u"ebox(1)"_s).SetText(u"町"_s);
        clerk.click(u"Btn(0)"_s);
        EXPECT_EQ(list().Rows(), 2);
        clerk.find<TextBox>(u"ebox(1)"_s).SetText(u"無い"_s);
        clerk.click(u"Btn(0)"_s);
        EXPECT_EQ(list().Rows(), 2) << "nothing found leaves the list";
        clerk.click(u"Btn(1)"_s);
        EXPECT_EQ(list().Rows(), 0);
        EXPECT_EQ(clerk.text(u"ebox(1)"_s), QString());
    });
    EXPECT_EQ(PickCode(u"Rte"_s), QString());
}

TEST_F(Lookups, BanksAreListedButNotSearched) {
    insert("Bnk(Code,Stn,BkName) VALUES(5,7,'ｷﾞﾝｺｳ')");
    inDialog(u"Help_frm"_s, [this] {
        EXPECT_EQ(GridRow(list(), 0, 0, 1), u"0005|007"_s);
        clerk.answerMsgBox();
        clerk.click(u"Btn(0)"_s);
        EXPECT_TRUE(clerk.lastSaid().startsWith(u"実行時エラー"_s));
    });
    PickCode(u"Bnk"_s);
}

TEST_F(Lookups, CustomersAreFoundByRouteInTheirRound) {
    clerk.expect(u"HelpDeal_frm"_s, [this](QWidget&) {
        EXPECT_EQ(list().Rows(), 1) << "nothing is read before a search";
        EXPECT_EQ(list().TextMatrix(0, 1), u"ｺｰﾄﾞ"_s);
        clerk.click(u"ebox(0)"_s);
        clerk.enter();
        clerk.enter();
        clerk.fill(u"1"_s);
        EXPECT_EQ(clerk.text(u"sRte"_s), u"北町"_s);
        EXPECT_EQ(clerk.focusedName(), u"Btn(0)"_s);
        clerk.enter();
        EXPECT_EQ(column(2), (QStringList{u"佐藤"_s, u"山田"_s}));
        clerk.clickCell(list(), 0, 1);
        EXPECT_TRUE(clerk.isOpen(u"HelpDeal_frm"_s)) << "the head picks nothing";
        clerk.clickCell(list(), 2, 3);
    });
    EXPECT_EQ(PickCode(u"Deal"_s), u"11"_s);

    inDialog(u"HelpDeal_frm"_s, [this] {
        EXPECT_EQ(list().Rows(), 1) << "a second use starts anew";
        EXPECT_EQ(clerk.text(u"sRte"_s), QString());
        EXPECT_EQ(clerk.focusedName(), u"ebox(0)"_s) << "though it was left in the list";
        clerk.expect(u"Help_frm"_s, [this](QWidget&) { clerk.clickCell(list(), 3, 0); });
        clerk.click(u"F6(0)"_s);
        EXPECT_EQ(clerk.text(u"ebox(2)"_s), u"2"_s);
        clerk.enter();
        EXPECT_EQ(column(1), QStringList{u"13"_s});
    });
    EXPECT_EQ(PickCode(u"Deal"_s), QString());
}

TEST_F(Lookups, SlipsAndACustomersPaymentsAreListedNewestFirst) {
    insert(
        "Dud(Dno,Eda,Hizuke,Deal,HinNamae,Gaku) VALUES(1,1,#2011/03/05#,11,'ボンベ',1200),"
        "(1,2,#2011/03/05#,11,'ホース',300),(2,1,#2011/03/06#,12,'コンロ',19800)");
    clerk.expect(u"HelpSlip_frm"_s, [this](QWidget&) {
        EXPECT_EQ(GridRows(list()),
                  (QStringList{u"2|2011/03/06|佐藤|コンロ|19,800"_s, u"1|2011/03/05|山田|ボンベ|1,500"_s}));
        clerk.clickCell(list(), 2, 0);
    });
    EXPECT_EQ(PickSlip(), u"1"_s);

    insert(
        "Dny(Dno,Eda,Hizuke,Deal,Gaku) "
        "VALUES(5,1,#2011/03/05#,11,1200),(6,1,#2011/04/05#,11,2300),(7,1,#2011/04/06#,12,1)");
    clerk.expect(u"HelpN_frm"_s, [this](QWidget&) {
        EXPECT_EQ(GridRows(list(), 0, 2), (QStringList{u"6|2011/04/05|2,300"_s, u"5|2011/03/05|1,200"_s}));
        clerk.clickCell(list(), 1, 0);
    });
    EXPECT_EQ(PickPayment(11), u"6"_s);
}

}  // namespace
}  // namespace akarix
