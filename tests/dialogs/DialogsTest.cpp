#include "dialogs/AskConfirm.h"
#include "dialogs/AskText.h"
#include "dialogs/ShowAlert.h"
#include "platform/forms/TextBox.h"
#include "platform/runtime/Literals.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

class Dialogs : public ScreenTest {
 protected:
    /// \param keys v ^ arrows, e Enter, x the close box
    void play(const char* keys, QWidget& dialog) {
        for (; *keys != '\0'; ++keys) {
            EXPECT_TRUE(dialog.isVisible()) << "gone before " << keys;
            if (*keys == 'v')
                clerk.down();
            else if (*keys == '^')
                clerk.up();
            else if (*keys == 'e')
                clerk.enter();
            else
                clerk.closeBox(dialog);
        }
        EXPECT_FALSE(dialog.isVisible());
    }
};

TEST_F(Dialogs, AlertShowsItsLinesAndGoesAtEnter) {
    clerk.expect("Alert_frm", [&](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), u"Nagomi Systems");
        EXPECT_EQ(clerk.focusedName(), u"Btn");
        clerk.enter();
    });
    ShowAlert(u"一行目\n二行目 <b>"_s);
    EXPECT_EQ(clerk.lastSaid(), u"一行目\n二行目 <b>");
    EXPECT_FALSE(clerk.isOpen("Alert_frm"));
}

TEST_F(Dialogs, AnswerByKeysAndCloseBox) {
    const struct {
        const char* keys;
        bool confirm, confirmRev;
    } cases[] = {{"ee", true, true},  // the first Enter only moves the focus
                 {"vee", false, false},
                 {"v^ee", true, true},
                 {"vx", false, true},
                 {"vex", false, true}};  // the button has the focus, unpressed
    for (const auto& c : cases) {
        const auto answer = [&](QWidget& dialog) { play(c.keys, dialog); };
        clerk.expect("Confirm_frm", answer);
        EXPECT_EQ(AskConfirm(u"a&bで更新します。"_s, u"はい"_s, u"いいえ"_s), c.confirm) << c.keys;
        EXPECT_EQ(clerk.lastSaid(), u"a&bで更新します。");
        clerk.expect("gyakuConfirm_frm", answer);
        EXPECT_EQ(AskConfirmRev(u"この対象年月のデータを削除しますか？"_s, u"いいえ"_s, u"削除"_s),
                  c.confirmRev)
            << c.keys;
    }
}

TEST_F(Dialogs, AskTextTakesWhatStandsInTheBox) {
    const struct {
        const char *preset, *typed, *answer;
    } cases[] = {{"", "", ""}, {"old", "", "old"}, {"", "ひらがな", "ひらがな"}, {"old", " x ", " x "}};
    for (const auto& c : cases) {
        clerk.expect("Request_frm", [&](QWidget&) {
            clerk.type(QString::fromUtf8(c.typed));
            clerk.enter();
        });
        EXPECT_EQ(AskText(u"パスワードを入力してください。"_s, QString::fromUtf8(c.preset)),
                  QString::fromUtf8(c.answer));
        EXPECT_EQ(clerk.lastSaid(), u"パスワードを入力してください。");
    }
}

TEST_F(Dialogs, AskTextKeys) {
    clerk.expect("Request_frm", [&](QWidget& dialog) {
        clerk.shiftTab();
        clerk.press(Qt::Key_Escape);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(clerk.focusedName(), u"ebox");
        EXPECT_EQ(clerk.find<TextBox>("ebox").selectedText(), u"abc");
        clerk.tab();
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(AskText("?", "abc"), u"abc");

    clerk.expect("Request_frm", [&](QWidget& dialog) { clerk.closeBox(dialog); });
    EXPECT_EQ(AskText("?", "abc"), u"");
}

}  // namespace
}  // namespace akarix
