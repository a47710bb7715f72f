#include <QTextBlock>

#include "dialogs/ShowAlert.h"
#include "entry/SlipN2_frm.h"
#include "masters/MstRte_frm.h"
#include "platform/runtime/Literals.h"
#include "shell/Guide_frm.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

class Guide : public ScreenTest {
 protected:
    Guide() { Form::SetHelp(&Guide_frm::OpenFor); }
    ~Guide() override { Form::SetHelp({}); }

    GuidePages& pages() { return clerk.find<GuidePages>(u"Guide_frm/Pages"_s); }
    /// The heading, or the text, at the top of what is seen.
    QString atTop() {
        clerk.settle();
        return pages().cursorForPosition(QPoint(4, 8)).block().text();
    }

    ScratchStore store;
};

TEST_F(Guide, OpensAtTheChapterOfTheScreenAndStaysBesideIt) {
    OpenScreen<SlipN2_frm>();
    clerk.press(Qt::Key_F1);
    EXPECT_EQ(atTop(), u"入金入力"_s);
    EXPECT_TRUE(pages().toPlainText().contains(u"売掛をすぐに直し"_s));
    OpenScreen<MstRte_frm>();
    clerk.press(Qt::Key_F1);
    EXPECT_EQ(atTop(), u"地区"_s);
    clerk.press(Qt::Key_Escape);
    EXPECT_FALSE(clerk.isOpen(u"Guide_frm"_s));
    EXPECT_TRUE(clerk.isOpen(u"MstRte_frm"_s));
}

TEST_F(Guide, OverADialogItTellsOfTheScreenBelow) {
    OpenScreen<SlipN2_frm>();
    clerk.settle();
    clerk.expect(u"Alert_frm"_s, [this](QWidget& dialog) {
        clerk.press(Qt::Key_F1);
        EXPECT_EQ(atTop(), u"入金入力"_s);
        clerk.press(Qt::Key_Escape);
        dialog.activateWindow();
        clerk.enter();
    });
    ShowAlert(u"入金日を入れてください。"_s);
}

TEST_F(Guide, LinksLeadToTheirHeading) {
    OpenScreen<MstRte_frm>();
    clerk.press(Qt::Key_F1);
    emit pages().anchorClicked(QUrl(u"trouble.md#検針売上入金"_s));
    EXPECT_EQ(atTop(), u"検針・売上・入金"_s);
}

}  // namespace
}  // namespace akarix
