#include "masters/MstHin_frm.h"

#include "platform/forms/FlexGrid.h"
#include "store/dbAccess.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

class ItemMaster : public ScreenTest {
 protected:
    ItemMaster() {
        ScratchStore::run(
            "INSERT INTO Hin(Code,Kana,Namae,Tanka) VALUES(2,'ﾎｰｽ','ゴムホース',1280);\n"
            "INSERT INTO Hin(Code,Kana,Namae,Tanka) VALUES(70000,'ｶﾝｷ','換気扇',1234567.5)");
        OpenScreen<MstHin_frm>();
    }

    QString shown() {
        QStringList texts;
        for (int i = 0; i < 4; ++i) {
            texts += clerk.text(u"ebox(%1)"_qs.arg(i));
        }
        return texts.join(u'/');
    }
    static QStringList stored() {
        return ScratchStore::rows(u"SELECT Code,Kana,Namae,Tanka FROM Hin ORDER BY Code"_qs);
    }

    ScratchStore store;
};

TEST_F(ItemMaster, TypedThroughAndSavedByEnter) {
    EXPECT_EQ(shown(), u"70001///"_qs);
    clerk.enter();
    clerk.fill(u"ﾃｯｶﾝ"_qs);
    clerk.fill(u"点火器"_qs);
    clerk.fill(u"2,480.25"_qs);
    clerk.enter();
    EXPECT_EQ(stored().back(), u"70001|ﾃｯｶﾝ|点火器|2480.25"_qs);
    EXPECT_EQ(shown(), u"70002///"_qs);
    EXPECT_EQ(clerk.focusedName(), u"ebox(0)"_qs);
}

TEST_F(ItemMaster, AFractionOfThePriceIsKeptUntilTheRowIsSavedFromTheScreen) {
    clerk.fill(u"70000"_qs);
    EXPECT_EQ(shown(), u"70000/ｶﾝｷ/換気扇/1,234,568"_qs);
    EXPECT_EQ(stored().back(), u"70000|ｶﾝｷ|換気扇|1234567.5"_qs);
    clerk.click(u"Btn(2)"_qs);
    EXPECT_EQ(stored().back(), u"70000|ｶﾝｷ|換気扇|1234568"_qs) << "what is seen is what is saved";
}

TEST_F(ItemMaster, SavesNothingWithoutCodeAndName) {
    struct Case {
        const char* code;
        const char16_t* name;
        const char16_t* message;
        const char16_t* focus;
    };
    for (const Case& c : {Case{"0", u"", u"コード番号は不正です。", u"ebox(0)"},
                          {"0", u"名", u"コード番号は不正です。", u"ebox(0)"},
                          {"5", u"", u"商品名を入れて下さい。", u"ebox(2)"},
                          {"5", u"  ", u"商品名を入れて下さい。", u"ebox(2)"}}) {
        clerk.click(u"Btn(0)"_qs);
        clerk.fill(c.code);
        clerk.enter();
        clerk.fill(QString::fromUtf16(c.name));
        clerk.answerAlert();
        clerk.click(u"Btn(2)"_qs);
        EXPECT_EQ(clerk.lastSaid(), QString::fromUtf16(c.message));
        EXPECT_EQ(clerk.focusedName(), QString::fromUtf16(c.focus));
        EXPECT_EQ(stored().size(), 2);
    }
}

TEST_F(ItemMaster, WalksToBothEnds) {
    clerk.fill(u"3"_qs);
    EXPECT_EQ(shown(), u"3///"_qs);
    for (const auto& [button, screen] :
         std::vector<std::pair<QString, QString>>{{u"cmdRight"_qs, u"70000/ｶﾝｷ/換気扇/1,234,568"_qs},
                                                  {u"cmdLeft"_qs, u"2/ﾎｰｽ/ゴムホース/1,280"_qs},
                                                  {u"cmdLeft"_qs, u"70001///"_qs}}) {
        clerk.click(button);
        EXPECT_EQ(shown(), screen) << button.toStdString();
    }
}

TEST_F(ItemMaster, DeletesWhenConfirmedAndLeavesTheSlips) {
    ScratchStore::run(
        u"INSERT INTO Dud(Dno,Eda,Deal,HinCode,HinNamae,Nendo,Getudo) VALUES(1,1,1,2,'ホース',2023,4)"_qs);
    clerk.fill(u"2"_qs);
    clerk.answerConfirm(false);
    clerk.click(u"Btn(1)"_qs);
    EXPECT_EQ(clerk.lastSaid(), u"この商品を削除します。"_qs);
    EXPECT_EQ(stored().size(), 2);
    clerk.answerConfirm(true);
    clerk.click(u"Btn(1)"_qs);
    EXPECT_EQ(stored(), QStringList{u"70000|ｶﾝｷ|換気扇|1234567.5"_qs});
    EXPECT_EQ(ScratchStore::rows(u"SELECT HinCode,HinNamae FROM Dud"_qs), QStringList{u"2|ホース"_qs});
    EXPECT_EQ(shown(), u"70001///"_qs);
}

TEST_F(ItemMaster, PicksFromTheLookup) {
    clerk.expect(u"Help_frm"_qs,
                 [this](QWidget&) { clerk.clickCell(clerk.find<FlexGrid>(u"List"_qs), 0, 1); });
    clerk.click(u"F6(0)"_qs);
    EXPECT_EQ(shown(), u"70000/ｶﾝｷ/換気扇/1,234,568"_qs) << "in the order of the reading";
    EXPECT_EQ(clerk.focusedName(), u"ebox(1)"_qs);
}

}  // namespace
}  // namespace akarix
