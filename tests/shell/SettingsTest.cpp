#include "shell/Keihoki_frm.h"
#include "shell/SysFunc_frm.h"
#include "shell/etc_frm.h"
#include "store/Settings.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

class Settings : public ScreenTest {
 protected:
    ~Settings() override { gPrintPreview = false; }

    template <class F>
    void open() {
        OpenScreen<F>();
        clerk.settle();
    }
    static QStringList rows(const QString& table, const QString& where) {
        return ScratchStore::rows(
            u"SELECT Code,contents FROM %1 WHERE %2 ORDER BY Code"_qs.arg(table, where));
    }
    static QStringList defaults() { return rows(u"zSysFunc"_qs, u"Code<=3"_qs); }
    static QStringList fees() { return rows(u"UserOP"_qs, u"Code=2 or Code=3"_qs); }
    QString shown(int fields) {
        QStringList texts;
        for (int i = 0; i < fields; ++i) {
            texts += clerk.text(u"ebox(%1)"_qs.arg(i));
        }
        return texts.join(u'/');
    }

    ScratchStore store;
};

TEST_F(Settings, DefaultsAreTypedThroughAndStayOnTheScreen) {
    open<etc_frm>();
    EXPECT_EQ(shown(3), u"31/25/1"_qs);
    clerk.fill(u"20"_qs);
    clerk.fill(u"10"_qs);
    clerk.fill(u"0"_qs);
    EXPECT_EQ(clerk.focusedName(), u"Btn(1)"_qs);
    EXPECT_EQ(defaults(), (QStringList{u"1|31"_qs, u"2|1"_qs, u"3|25"_qs}));
    clerk.enter();
    EXPECT_EQ(defaults(), (QStringList{u"1|20"_qs, u"2|0"_qs, u"3|10"_qs}));
    EXPECT_EQ(shown(3), u"20/10/0"_qs);
    EXPECT_EQ(clerk.said(), QStringList());
    clerk.click(u"ebox(0)"_qs);
    clerk.fill(u"5"_qs);
    clerk.click(u"Btn(0)"_qs);
    EXPECT_FALSE(clerk.isOpen(u"etc_frm"_qs));
    EXPECT_EQ(defaults().first(), u"1|20"_qs);
}

TEST_F(Settings, PrintingFollowsTheSaveAtOnce) {
    struct Case {
        const char* typed;
        bool preview;
        const char16_t* stored;
    };
    for (const Case& c :
         {Case{"1", true, u"2|1"}, {"", false, u"2| "}, {"x", false, u"2|x"}, {"12", false, u"2|12"}}) {
        open<etc_frm>();
        gPrintPreview = !c.preview;
        clerk.enter();
        clerk.enter();
        clerk.press(Qt::Key_Delete);
        clerk.fill(QString(c.typed));
        EXPECT_EQ(gPrintPreview, !c.preview) << "not before it is saved";
        clerk.enter();
        EXPECT_EQ(gPrintPreview, c.preview) << c.typed;
        EXPECT_EQ(defaults().at(1), QString::fromUtf16(c.stored));
    }
}

TEST_F(Settings, MissingRowsAreMade) {
    gDb->Execute(u"DELETE FROM zSysFunc WHERE Code<=3"_qs);
    gDb->Execute(u"DELETE FROM UserOP"_qs);
    open<etc_frm>();
    EXPECT_EQ(shown(3), u"//"_qs);
    clerk.fill(u"15"_qs);
    clerk.click(u"Btn(1)"_qs);
    EXPECT_EQ(defaults(), (QStringList{u"1|15"_qs, u"2| "_qs, u"3| "_qs}));
    open<Keihoki_frm>();
    EXPECT_EQ(shown(2), u"/"_qs);
    clerk.enter();
    clerk.fill(u"1,200"_qs);
    clerk.enter();
    EXPECT_EQ(fees(), (QStringList{u"2|0"_qs, u"3|1200"_qs}));
}

TEST_F(Settings, FeesAreStoredAsPlainNumbers) {
    gDb->Execute(u"UPDATE UserOP SET contents='1500' WHERE Code=2"_qs);
    gDb->Execute(u"UPDATE UserOP SET contents='0' WHERE Code=3"_qs);
    open<Keihoki_frm>();
    EXPECT_EQ(shown(2), u"1,500/"_qs);
    clerk.fill(u".5"_qs);
    clerk.fill(u"980yen"_qs);
    EXPECT_EQ(clerk.focusedName(), u"Btn"_qs);
    EXPECT_EQ(shown(2), u".5/980ye"_qs) << "five bytes";
    clerk.enter();
    EXPECT_EQ(fees(), (QStringList{u"2|0.5"_qs, u"3|980"_qs}));
    EXPECT_TRUE(clerk.isOpen(u"Keihoki_frm"_qs));
    EXPECT_EQ(clerk.said(), QStringList());
}

TEST_F(Settings, AnyRowIsEditedByItsCode) {
    open<SysFunc_frm>();
    clerk.fill(u"No.3"_qs);
    EXPECT_EQ(shown(2), u"No.3/"_qs) << "read as .3";
    clerk.up();
    clerk.fill(u"100"_qs);
    EXPECT_EQ(shown(2), u"100/1"_qs);
    clerk.fill(u"0"_qs);
    EXPECT_EQ(shown(2), u"/"_qs);
    EXPECT_EQ(clerk.focusedName(), u"ebox(0)"_qs);
    clerk.fill(u"777"_qs);
    EXPECT_EQ(shown(2), u"777/"_qs);
    clerk.type(u"新しい"_qs);
    clerk.click(u"Btn"_qs);
    EXPECT_EQ(shown(2), u"/"_qs);
    EXPECT_EQ(rows(u"zSysFunc"_qs, u"Code>=100 AND Code<>123"_qs),
              (QStringList{u"100|0"_qs, u"777|新しい"_qs}));
    clerk.fill(u"12a"_qs);
    clerk.answerMsgBox();
    clerk.enter();
    EXPECT_TRUE(clerk.lastSaid().startsWith(u"実行時エラー '13'"_qs)) << "a new row needs a number";
    EXPECT_EQ(rows(u"zSysFunc"_qs, u"Code=12"_qs), QStringList());
}

}  // namespace
}  // namespace akarix
