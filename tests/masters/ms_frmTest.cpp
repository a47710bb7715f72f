#include "masters/ms_frm.h"

#include "platform/forms/FlexGrid.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

class CodeLists : public ScreenTest {
 protected:
    void open(const QString& table) {
        auto& form = Form::Instance<ms_frm>();
        form.Show();
        form.init(table);
        clerk.settle();
    }
    QString shown() {
        QStringList texts;
        for (int i = 0; i < 4; ++i) {
            texts += clerk.text(u"ebox(%1)"_qs.arg(i));
        }
        return texts.join(u'/');
    }
    static QStringList stored(const QString& table) {
        return ScratchStore::rows(u"SELECT Code,Kana,Namae,Ryaku FROM %1 ORDER BY Code"_qs.arg(table));
    }

    ScratchStore store;
};

TEST_F(CodeLists, EachTableIsKeptUnderItsCaption) {
    struct Case {
        const char16_t* table;
        const char16_t* caption;
    };
    for (const Case& c : {Case{u"Dbn", u"取引先分類"},
                          {u"Kko", u"加工方法"},
                          {u"DyJkn", u"染色条件"},
                          {u"Col", u"色"},
                          {u"Shk", u"出荷形態"}}) {
        const QString table = QString::fromUtf16(c.table);
        gDb->Execute(u"DELETE FROM "_qs + table);
        open(table);
        EXPECT_EQ(clerk.window()->windowTitle(), QString::fromUtf16(c.caption));
        EXPECT_EQ(shown(), u"1///"_qs) << "an empty table begins at 1";
        clerk.fill(u"7"_qs);
        EXPECT_EQ(shown(), u"1///"_qs) << "an unknown code gives way to the next free one";
        clerk.fill(u"ｱｶ"_qs);
        clerk.fill(u"赤い名前"_qs);
        EXPECT_EQ(shown(), u"1/ｱｶ/赤い名前/赤い名前"_qs);
        clerk.enter();
        EXPECT_EQ(shown(), u"2///"_qs);
        EXPECT_EQ(clerk.focusedName(), u"ebox(0)"_qs);
        EXPECT_EQ(stored(table), QStringList{u"1|ｱｶ|赤い名前|赤い名前"_qs});
    }
}

TEST_F(CodeLists, AKnownCodeIsEditedAndDeleted) {
    open(u"Col"_qs);
    clerk.fill(u"1-2"_qs);
    EXPECT_EQ(shown(), u"3///"_qs) << "no code";
    clerk.up();
    clerk.fill(u"2"_qs);
    EXPECT_EQ(shown(), u"2/ﾊｲ/灰/灰"_qs);
    clerk.enter();
    clerk.fill(u"銀"_qs);
    EXPECT_EQ(shown(), u"2/ﾊｲ/銀/灰"_qs) << "a short name of its own stays";
    clerk.click(u"Btn(2)"_qs);
    EXPECT_EQ(stored(u"Col"_qs), (QStringList{u"1|ｼﾛ|白|白"_qs, u"2|ﾊｲ|銀|灰"_qs}));
    clerk.fill(u"1"_qs);
    for (const bool yes : {false, true}) {
        clerk.answerConfirm(yes);
        clerk.click(u"Btn(1)"_qs);
        EXPECT_EQ(clerk.lastSaid(), u"このコードを削除します。"_qs);
        EXPECT_EQ(stored(u"Col"_qs).size(), yes ? 1 : 2);
    }
    EXPECT_EQ(shown(), u"3///"_qs);
}

TEST_F(CodeLists, WithoutACodeNothingIsSaved) {
    open(u"Kko"_qs);
    for (const char* code : {"0", "", "x"}) {
        clerk.click(u"ebox(0)"_qs);
        clerk.press(Qt::Key_A, Qt::ControlModifier);
        clerk.press(Qt::Key_Delete);
        clerk.type(QString(code));
        clerk.answerAlert();
        clerk.click(u"Btn(2)"_qs);
        EXPECT_EQ(clerk.lastSaid(), u"コードが記述されていません。"_qs) << code;
        EXPECT_EQ(clerk.focusedName(), u"ebox(0)"_qs);
    }
    EXPECT_EQ(stored(u"Kko"_qs).size(), 1);
}

TEST_F(CodeLists, TheLookupShowsTheListAtHand) {
    for (const QString& table : {u"Shk"_qs, u"Dbn"_qs}) {
        open(table);
        clerk.expect(u"Help_frm"_qs,
                     [this](QWidget&) { clerk.clickCell(clerk.find<FlexGrid>("List"), 0, 0); });
        clerk.click(u"F6(0)"_qs);
        EXPECT_EQ(shown(), table == u"Shk" ? u"2/ｼﾞｻﾝ/持参/持参"_qs : u"1/ｲﾂﾊﾟﾝ/一般/一般"_qs);
    }
}

}  // namespace
}  // namespace akarix
