#include "platform/forms/Form.h"

#include <QApplication>
#include <QTest>
#include <algorithm>

#include "platform/forms/CommandButton.h"
#include "platform/forms/FieldLayout.h"
#include "platform/forms/MsgBox.h"
#include "platform/forms/Notice.h"
#include "platform/forms/TextBox.h"
#include "platform/runtime/ActionListener.h"
#include "platform/runtime/Literals.h"
#include "support/Raised.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

/// Three fields and a button; what the handlers do is up to the test.
class Sample_frm : public Form {
 public:
    Sample_frm() : Form("Sample_frm", "見本") {
        auto* whole = new QVBoxLayout(this);
        FieldLayout fields(*this);
        whole->addLayout(fields.layout());
        for (int i = 0; i < 3; ++i)
            fields.row("欄").text(ebox.add(i, new TextBox), 10);
        CommandButton& keep = Btn.add(0, new CommandButton("保存", nullptr, ButtonWeight::Keeps));
        JoinWalk(*this, keep);
        whole->addWidget(&keep, 0, Qt::AlignRight);
        ++built;
    }

    using Form::on;
    std::function<void(bool&)> askBeforeClosing;
    static inline int built = 0;

    ControlArray<TextBox> ebox{"ebox"};
    ControlArray<CommandButton> Btn{"Btn"};

 protected:
    void QueryUnload(bool& cancel) override {
        if (askBeforeClosing) askBeforeClosing(cancel);
    }
};

class Other_frm : public Form {
 public:
    Other_frm() : Form("Other_frm", "別") {
        auto* whole = new QVBoxLayout(this);
        whole->addWidget(&Named(new CommandButton("OK"), "Btn"));
    }
};

class Forms : public ScreenTest {
 protected:
    Sample_frm& sample() {
        auto& form = Form::Instance<Sample_frm>();
        form.Show();
        clerk.settle();
        return form;
    }
};

TEST_F(Forms, OneInstanceUntilUnloadedThenAFreshOne) {
    Sample_frm& form = sample();
    form.ebox(0).SetText("kept");
    form.Hide();
    EXPECT_EQ(&sample(), &form);
    EXPECT_EQ(form.ebox(0).Text(), u"kept");
    const int before = Sample_frm::built;
    form.Unload();
    EXPECT_NE(&Form::Instance<Sample_frm>(), &form);
    EXPECT_EQ(Sample_frm::built, before + 1);
    EXPECT_EQ(form.ebox(0).Text(), u"kept");  // still there for the handler that unloaded it
}

TEST_F(Forms, AnUnloadedFormOutlivesTheDialogsOfItsAction) {
    auto& form = Form::Instance<Sample_frm>();
    QPointer<Form> watched = &form;
    clerk.expect("Sample_frm", [&](QWidget& dialog) { clerk.closeBox(dialog); });
    clerk.answerMsgBox();
    RunGuarded([&] {
        form.ShowModal();
        MsgBox("between", "t");
        EXPECT_FALSE(watched.isNull());
    });
    clerk.settle();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(watched.isNull());
}

TEST_F(Forms, HelpAndKeepHaveAKeyOnEveryForm) {
    QStringList pressed;
    Form::SetHelp([&](const Form& asking) { pressed << "help of " + asking.objectName(); });
    Sample_frm& form = sample();
    form.on(&form.Btn(0), &CommandButton::Click, [&] {
        pressed << "kept";
        form.ForgetEdits();
    });
    form.on(&form.ebox(0), &TextBox::LostFocus, [&] { pressed << "left"; });
    clerk.press(Qt::Key_F1);
    clerk.press(Qt::Key_S, Qt::ControlModifier);  // nothing typed yet
    clerk.type(u"5"_s);
    clerk.press(Qt::Key_S, Qt::ControlModifier);
    clerk.press(Qt::Key_S, Qt::ControlModifier);  // nothing typed since
    EXPECT_EQ(pressed, QStringList({"help of Sample_frm", "left", "kept"}));
    pressed.clear();
    form.ebox(0).setFocus();
    clerk.type(u"5"_s);
    form.Btn(0).setEnabled(false);
    clerk.press(Qt::Key_S, Qt::ControlModifier);
    form.Btn(0).setEnabled(true);
    form.Btn(0).setVisible(false);
    clerk.press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(pressed, QStringList());
    form.SetHelp({});
}

TEST_F(Forms, CloseBoxAsksAndEscapeDoesNotClose) {
    Sample_frm& form = sample();
    bool refuse = true;
    int asked = 0;
    form.askBeforeClosing = [&](bool& cancel) {
        ++asked;
        cancel = refuse;
    };
    clerk.press(Qt::Key_Escape);
    EXPECT_EQ(asked, 0);
    clerk.closeBox(form);
    EXPECT_TRUE(form.isVisible());
    refuse = false;
    clerk.closeBox(form);
    EXPECT_FALSE(clerk.isOpen("Sample_frm"));
    EXPECT_EQ(asked, 2);
}

TEST_F(Forms, ModalFormsNestAndEachWaitsForItsOwn) {
    Sample_frm& form = sample();
    QStringList order;
    form.on(&form.Btn(0), &CommandButton::Click, [&] {
        auto& outer = Form::Instance<Other_frm>();
        outer.ShowModal();
        order << "outer done";
    });
    clerk.expect("Other_frm", [&](QWidget& outer) {
        clerk.expect("MsgBox", [&](QWidget&) {
            order << "inner stands";
            clerk.enter();
        });
        MsgBox("inner", "t");
        order << "inner done";
        EXPECT_TRUE(outer.isVisible());
        clerk.closeBox(outer);
    });
    clerk.click("Btn(0)");
    EXPECT_EQ(order, QStringList({"inner stands", "inner done", "outer done"}));
    EXPECT_EQ(clerk.window(), &form);
}

// The menu, opened before, must not catch the keys meant for the screen.
TEST_F(Forms, DialogsInARowLeaveTheKeyboardWhereItWas) {
    class Menu_frm : public Form {
     public:
        Menu_frm() : Form("Menu_frm", "menu") {}
    };
    Form::Instance<Menu_frm>().Show();
    Sample_frm& form = sample();
    form.on(&form.Btn(0), &CommandButton::Click, [] {
        for (int i = 0; i < 3; ++i)
            Form::Instance<Other_frm>().ShowModal();
    });
    for (int i = 0; i < 3; ++i)
        clerk.expect("Other_frm", [this](QWidget& shown) { clerk.closeBox(shown); });
    clerk.click("Btn(0)");
    EXPECT_EQ(clerk.window(), &form);
    EXPECT_EQ(clerk.focusedName(), "Btn(0)");
}

TEST_F(Forms, TheSecondOfADoubleClickDoesNothingToWhatHasComeUnderTheMouse) {
    Sample_frm& form = sample();
    auto& other = Form::Instance<Other_frm>();
    auto& ok = *other.findChild<CommandButton*>("Btn");
    int pressed = 0;
    form.on(&ok, &CommandButton::Click, [&] { ++pressed; });
    form.on(&form.Btn(0), &CommandButton::Click, [&] { SetFocus(&form.ebox(0)); });
    clerk.doubleClick("Btn(0)");
    EXPECT_EQ(clerk.focusedName(), u"ebox(0)") << "nor does it take the keyboard back";

    form.on(&form.Btn(0), &CommandButton::Click, [&] {
        other.Show();
        const QWidget& under = form.Btn(0);
        other.move(other.pos() + under.mapToGlobal(under.rect().center()) -
                   ok.mapToGlobal(ok.rect().center()));
    });
    clerk.doubleClick("Btn(0)");
    EXPECT_EQ(pressed, 0);
    clerk.click(ok);
    EXPECT_EQ(pressed, 1);
}

TEST_F(Forms, AnEscapingErrorIsShownAndTheFormGoesOn) {
    Sample_frm& form = sample();
    int clicks = 0;
    form.on(form.Btn, &CommandButton::Click, [&](int index) {
        if (++clicks == 1) throw RuntimeError(6);
        if (clicks == 2) throw std::runtime_error("lost");
        EXPECT_EQ(index, 0);
    });
    clerk.expect("MsgBox", [&](QWidget& box) {
        EXPECT_EQ(box.windowTitle(), u"Akarix");
        clerk.enter();
    });
    clerk.click("Btn(0)");
    EXPECT_EQ(clerk.lastSaid(), "実行時エラー '6':\n\n" + ErrorText(6));
    clerk.answerMsgBox();
    clerk.click("Btn(0)");
    EXPECT_EQ(clerk.lastSaid(), "実行時エラー '51':\n\n" + ErrorText(51));
    clerk.click("Btn(0)");
    EXPECT_EQ(clicks, 3);
}

TEST_F(Forms, EveryHandlerRunsInAnActionWhoseEndMayFail) {
    struct Store : ActionListener {
        explicit Store(QStringList& log) : log_(log) {}
        void actionEnded() override {
            log_ << "end";
            if (std::exchange(fails, false)) throw RuntimeError(61);
        }
        bool fails = false;
        QStringList& log_;
    };
    QStringList log;
    Store store(log);
    EXPECT_TRUE(RunGuarded([&] { RunGuarded([&] { log << "inner"; }); }));
    EXPECT_EQ(log.join(u' '), u"inner end");

    log.clear();
    clerk.expect("MsgBox", [&](QWidget&) {
        log << "shown";
        clerk.enter();
    });
    EXPECT_FALSE(RunGuarded([] { throw RuntimeError(3022); }));
    EXPECT_EQ(log.join(u' '), u"end shown");

    sample();
    store.fails = true;
    clerk.answerMsgBox();
    EXPECT_FALSE(RunGuarded([] { NoticeSaved(); }));
    EXPECT_TRUE(clerk.lastSaid().contains("'61'"));
    const auto told = [] {
        const auto windows = QApplication::topLevelWidgets();
        return std::any_of(windows.begin(), windows.end(),
                           [](const QWidget* window) { return window->objectName() == "Notice"; });
    };
    sample();  // the box has left the desk without a window that has the keyboard
    EXPECT_FALSE(QTest::qWaitFor(told, 200)) << "what could not be stored is not called saved";
    EXPECT_TRUE(RunGuarded([] { NoticeSaved(); }));
    EXPECT_TRUE(QTest::qWaitFor(told, 2000));
}

TEST_F(Forms, SetFocusRefusesWhatCannotTakeIt) {
    Sample_frm& form = sample();
    const auto number = [](QWidget* control) { return Raised([control] { SetFocus(control); }); };
    form.ebox(1).setVisible(false);
    form.ebox(2).setEnabled(false);
    EXPECT_EQ(number(&form.ebox(0)), 0);
    EXPECT_EQ(number(&form.ebox(1)), 5);
    EXPECT_EQ(number(&form.ebox(2)), 5);
    EXPECT_EQ(clerk.focusedName(), u"ebox(0)");
    form.Hide();
    EXPECT_EQ(number(&form.Btn(0)), 0);  // waits for the showing
    form.Show();
    EXPECT_EQ(clerk.focusedName(), u"Btn(0)");
}

TEST(ClerkAlone, DialogsNobodyExpectedAreReportedAndClosed) {
    Clerk clerk;
    MsgBox("surprise", "t");
    clerk.expect("MsgBox", [](QWidget&) { throw std::runtime_error("lost"); });
    MsgBox("another", "t");
    clerk.expect("Alert_frm");
    MsgBox("third", "t");
    EXPECT_EQ(
        clerk.complaints().join(u'|'),
        u"思わぬ画面が出ました: surprise|画面「another」に答えられません: lost|思わぬ画面が出ました: third");
    EXPECT_EQ(clerk.said(), QStringList({"surprise", "another", "third"}));
}

}  // namespace
}  // namespace akarix
