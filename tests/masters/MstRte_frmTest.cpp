#include "masters/MstRte_frm.h"

#include "platform/forms/FlexGrid.h"
#include "store/dbAccess.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

class RouteMaster : public ScreenTest {
 protected:
    RouteMaster() { OpenScreen<MstRte_frm>(); }

    /// The fields of the screen, joined by "/".
    QString shown() {
        QStringList texts;
        for (int i = 0; i < 4; ++i) {
            texts += clerk.text(u"ebox(%1)"_qs.arg(i));
        }
        return texts.join(u'/');
    }
    /// The rows of the table as the store holds them, blanks included.
    static QStringList stored() {
        return ScratchStore::rows(u"SELECT Code,Kana,Namae,Kensin FROM Rte ORDER BY Code"_qs);
    }
    static void insert(const QString& values) {
        gDb->Execute(u"INSERT INTO Rte(Code,Kana,Namae,Kensin) VALUES("_qs + values + u")"_qs);
    }

    ScratchStore store;
};

TEST_F(RouteMaster, TypedThroughAndSavedByEnter) {
    EXPECT_EQ(shown(), u"1///"_qs) << "an empty table begins at 1";
    clerk.enter();
    clerk.fill(u"ｷﾀﾏﾁ"_qs);
    clerk.fill(u"北町"_qs);
    clerk.fill(u"25"_qs);
    EXPECT_EQ(clerk.focusedName(), u"Btn(2)"_qs);
    clerk.enter();
    EXPECT_EQ(shown(), u"2///"_qs);
    EXPECT_EQ(clerk.focusedName(), u"ebox(0)"_qs);
    clerk.fill(u"7"_qs);
    clerk.click(u"Btn(2)"_qs);
    EXPECT_EQ(stored(), (QStringList{u"1|ｷﾀﾏﾁ|北町|25"_qs, u"7| | |0"_qs})) << "empty texts are one blank";
    EXPECT_EQ(shown(), u"8///"_qs);
}

TEST_F(RouteMaster, EditsAKnownCode) {
    insert(u"3,'ｱｵﾊﾞ','青葉',0"_qs);
    clerk.fill(u"3"_qs);
    EXPECT_EQ(shown(), u"3/ｱｵﾊﾞ/青葉/"_qs) << "day 0 shows empty";
    clerk.enter();
    clerk.fill(u"青葉台と名のる長い名前の地区である事"_qs);
    clerk.fill(u"10"_qs);
    clerk.enter();
    EXPECT_EQ(stored(), QStringList{u"3|ｱｵﾊﾞ|青葉台と名のる長い名前の地区で|10"_qs}) << "30 bytes";
}

TEST_F(RouteMaster, AnUnknownCodeStaysOnAnEmptyScreen) {
    insert(u"3,'ｱｵﾊﾞ','青葉',5"_qs);
    clerk.fill(u"3"_qs);
    clerk.up();
    clerk.fill(u"12"_qs);
    EXPECT_EQ(shown(), u"12///"_qs);
    EXPECT_EQ(clerk.focusedName(), u"ebox(1)"_qs);
    clerk.click(u"Btn(0)"_qs);
    EXPECT_EQ(shown(), u"4///"_qs);
}

TEST_F(RouteMaster, WalksToBothEnds) {
    insert(u"2,'ｱ','あ',1"_qs);
    insert(u"5,'ｲ','い',2"_qs);
    clerk.fill(u"3"_qs);
    clerk.click(u"cmdRight"_qs);
    EXPECT_EQ(shown(), u"5/ｲ/い/2"_qs);
    clerk.click(u"cmdLeft"_qs);
    EXPECT_EQ(shown(), u"2/ｱ/あ/1"_qs);
    clerk.click(u"cmdLeft"_qs);
    EXPECT_EQ(shown(), u"6///"_qs) << "past the end the screen is new";
    clerk.click(u"cmdLeft"_qs);
    clerk.click(u"cmdRight"_qs);
    EXPECT_EQ(shown(), u"6///"_qs);
    EXPECT_EQ(clerk.focusedName(), u"ebox(0)"_qs);
}

TEST_F(RouteMaster, RefusesCodeZero) {
    clerk.fill(u"0"_qs);
    clerk.answerAlert();
    clerk.click(u"Btn(2)"_qs);
    EXPECT_EQ(clerk.lastSaid(), u"コード番号は不正です。"_qs);
    EXPECT_EQ(clerk.focusedName(), u"ebox(0)"_qs);
    EXPECT_EQ(stored(), QStringList());
}

TEST_F(RouteMaster, DeletesWhenConfirmedWhoeverLivesThere) {
    insert(u"2,'ｱ','あ',1"_qs);
    gDb->Execute(u"INSERT INTO Deal(Code,Rte) VALUES(1,2)"_qs);
    clerk.fill(u"2"_qs);
    clerk.answerConfirm(false);
    clerk.click(u"Btn(1)"_qs);
    EXPECT_EQ(clerk.lastSaid(), u"このルートを削除します。"_qs);
    EXPECT_EQ(shown(), u"2/ｱ/あ/1"_qs);
    clerk.answerConfirm(true);
    clerk.click(u"Btn(1)"_qs);
    EXPECT_EQ(stored(), QStringList());
    EXPECT_EQ(shown(), u"1///"_qs);
}

TEST_F(RouteMaster, PicksFromTheLookup) {
    insert(u"2,'ｱ','あ',1"_qs);
    clerk.expect(u"Help_frm"_qs,
                 [this](QWidget&) { clerk.clickCell(clerk.find<FlexGrid>(u"List"_qs), 0, 1); });
    clerk.click(u"F6(0)"_qs);
    EXPECT_EQ(shown(), u"2/ｱ/あ/1"_qs);
    EXPECT_EQ(clerk.focusedName(), u"ebox(1)"_qs);
}

TEST_F(RouteMaster, ACodeTooLargeIsTheRunTimesError) {
    clerk.fill(u"70000"_qs);
    clerk.answerMsgBox();
    clerk.click(u"Btn(2)"_qs);
    EXPECT_TRUE(clerk.lastSaid().startsWith(u"実行時エラー '6'"_qs)) << clerk.said().back().toStdString();
    EXPECT_EQ(shown(), u"70000///"_qs);
}

}  // namespace
}  // namespace akarix
