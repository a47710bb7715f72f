#include <QApplication>
#include <QScreen>
#include <QScrollArea>

#include "platform/runtime/Literals.h"
#include "shell/Guide_frm.h"
#include "shell/Screens.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

class Room : public ScreenTest {
 protected:
    template <class F>
    static Form& openOn(QScreen* screen) {
        auto& form = Form::Instance<F>();
        form.setScreen(screen);
        form.Show();
        if constexpr (requires { form.init(); }) form.init();
        return form;
    }
    /// Every control is seen whole on its form, at the latest when it has the keyboard, and the form's frame
    /// is within the screen.
    void expectReachable(Form& form) {
        const std::string where =
            (form.objectName() + u" on "_s + form.screen()->name() + u": "_s).toStdString();
        EXPECT_TRUE(form.screen()->availableGeometry().contains(form.frameGeometry())) << where;
        const bool scrolls = form.findChild<QScrollArea*>(QString(), Qt::FindDirectChildrenOnly) != nullptr;
        if (scrolls) scrolling += form.objectName();
        for (QWidget* control : form.Controls()) {
            if (!control->isVisible()) continue;
            const bool walked = TabIndex(control) >= 0 && control->isEnabled();
            if (walked) SetFocus(control);
            if (scrolls && !walked) continue;
            const QRect place(control->mapTo(&form, QPoint()), control->size());
            EXPECT_TRUE(form.rect().contains(place)) << where << control->objectName().toStdString();
            const QSize least = control->minimumSizeHint().boundedTo(control->maximumSize());
            EXPECT_EQ(least.boundedTo(place.size()), least) << where << control->objectName().toStdString();
        }
    }

    ScratchStore store;
    QStringList scrolling;
};

TEST_F(Room, EveryScreenFitsTheSmallestDesksAndHasAChapter) {
    gDb->Execute(u"INSERT INTO TtoD(Deal,Nendo,Getudo) VALUES(1,2026,10)"_s);
    QFile chapters(QStringLiteral(AKARIX_SOURCE_DIR "/docs/user-guide/screens.md"));
    ASSERT_TRUE(chapters.open(QFile::ReadOnly));
    const QString guide = QString::fromUtf8(chapters.readAll());
    const auto screens = []<class... F>(std::tuple<F...>* /*kinds*/) {
        return std::vector<Form& (*)(QScreen*)>{&openOn<F>...};
    };
    using Kinds =
        std::tuple<main_menu, Slip_frm, SlipG_frm, SlipN2_frm, TorZan_frm, Seikyu_frm, SeikyuPrt_frm,
                   RepoSeikyu_frm, RepoDaichou_frm, MstDeal_frm, GTanka_frm, MstHin_frm, Keihoki_frm,
                   MstRte_frm, MstBnk_frm, MstYubin_frm, etc_frm, SysFunc_frm, BKItaku_frm, MstTanka_frm,
                   ms_frm, Dentaku_frm, Help_frm, HelpDeal_frm>;
    for (QScreen* small : QGuiApplication::screens().mid(1)) {
        for (const auto& open : screens(static_cast<Kinds*>(nullptr))) {
            Form& form = open(small);
            clerk.settle();
            ASSERT_EQ(form.screen(), small);
            expectReachable(form);
            const QString heading = GuideHeading(form);
            EXPECT_TRUE(heading.isEmpty() || guide.contains(u"\n## "_s + heading + u'\n'))
                << heading.toStdString();
            clerk.clearDesk();
        }
    }
    EXPECT_EQ(scrolling, QStringList{u"BKItaku_frm"_s}) << "the others fit";
}

}  // namespace
}  // namespace akarix
