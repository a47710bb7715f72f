#include "platform/forms/LongRun.h"

#include <QTest>
#include <QVBoxLayout>

#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/MsgBox.h"
#include "platform/forms/Notice.h"
#include "platform/forms/TextBox.h"
#include "support/Raised.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

class Screen : public Form {
 public:
    Screen() : Form("Screen", "画面") {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(&Named(new TextBox, "Box"));
        layout->addWidget(&Named(new CommandButton("実行"), "Run"));
    }
};

class LongRunTest : public ScreenTest {
 protected:
    void SetUp() override {
        Form::Instance<Screen>().Show();
        clerk.settle();
    }
    /// Steps until the window stands. False when the run was stopped.
    static bool work(LongRun& run, int milliseconds = 1200) {
        QElapsedTimer clock;
        clock.start();
        const int error = Raised([&] {
            for (; clock.elapsed() < milliseconds; QTest::qSleep(20))
                run.step(3, 7);
        });
        EXPECT_TRUE(error == 0 || error == CancelledByOperator);
        return error == 0;
    }
};

TEST_F(LongRunTest, DropsWhatIsTypedAndStopsAtItsOwnWindowAlone) {
    int pressed = 0;
    auto& button = clerk.find<CommandButton>("Run");
    QObject::connect(&button, &CommandButton::Click, [&] { ++pressed; });
    {
        LongRun run("請求書");
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        clerk.type("12");
        clerk.press(Qt::Key_Escape);
        clerk.click(button);
        clerk.find<TextBox>("Box").setFocus();
        EXPECT_TRUE(work(run)) << "Esc came before there was a window";
        EXPECT_EQ(clerk.focusedName(), "Box") << "the window leaves the keyboard where it is";
        EXPECT_EQ(clerk.text("Count"), "3 / 7");
        clerk.type("3");
        run.stage("繰越", false);
        clerk.press(Qt::Key_Escape);
        EXPECT_TRUE(work(run, 200)) << "this stage goes to its end";
        run.stage("請求書", true);
        EXPECT_TRUE(work(run, 100));
        clerk.click("Stop");
        EXPECT_FALSE(work(run, 200));
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_FALSE(clerk.isOpen("LongRun"));
    clerk.type("4");
    clerk.click(button);
    EXPECT_EQ(clerk.text("Box"), "4");
    EXPECT_EQ(pressed, 1);
}

TEST_F(LongRunTest, ADialogInItsMidstHasTheKeyboard) {
    LongRun run("請求書");
    EXPECT_TRUE(work(run));
    clerk.expect("MsgBox", [&](QWidget&) {
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        EXPECT_FALSE(clerk.isOpen("LongRun"));
        clerk.enter();
    });
    MsgBox("途中", "Akarix");
    EXPECT_TRUE(work(run, 200));
    EXPECT_FALSE(clerk.isOpen("LongRun")) << "the second starts anew";
    clerk.type("5");
    EXPECT_EQ(clerk.text("Box"), "");
}

TEST_F(LongRunTest, ANoticeGathersWhatAnActionTellsAndTakesNothing) {
    RunGuarded([] {
        for (int i = 1; i <= 5; ++i)
            ShowNotice(QString("%1 枚").arg(i));
    });
    EXPECT_EQ(clerk.text("Notice"), "1 枚\n2 枚\n3 枚\nほか 2 件");
    EXPECT_EQ(clerk.focusedName(), "Box");
    EXPECT_FALSE(clerk.find<QWidget>("Notice").geometry().intersects(
        clerk.find<TextBox>("Box").geometry().translated(clerk.form("Screen").pos())));
    NoticeSaved();
    EXPECT_EQ(clerk.text("Notice"), "保存しました。");
    clerk.form("Screen").Hide();
    EXPECT_FALSE(clerk.isOpen("Notice"));
}

}  // namespace
}  // namespace akarix
