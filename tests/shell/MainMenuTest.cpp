#include "shell/main_menu.h"

#include <QApplication>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include "output/EX.h"
#include "platform/forms/SingleInstance.h"
#include "platform/forms/TextBox.h"
#include "platform/runtime/Literals.h"
#include "store/Settings.h"
#include "store/StoreClaim.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"
#include "values/Dates.h"

namespace akarix {
namespace {

class MainMenu : public ScreenTest {
 protected:
    /// The guard against a second program is this machine's; the one that may run here is no concern of ours.
    static void SetUpTestSuite() {
        static const QTemporaryDir guard;
        SingleInstance::KeepIn(guard.path());
    }
    /// Changes the store before the program is started.
    static void prepare(const QString& statements) {
        ASSERT_TRUE(OpenDb([](const QString&, const QString&) {}));
        ScratchStore::run(statements);
        CloseDb();
    }
    static void setPassword(const QString& password) {
        prepare(u"UPDATE zSysFunc SET contents='%1' WHERE Code=123"_s.arg(password));
    }
    void clickSplash() {
        clerk.expect(u"Opening_frm"_s, [this](QWidget&) {
            EXPECT_EQ(gDb, nullptr) << "the store is opened behind the splash";
            clerk.click("Image1");
        });
    }
    bool start(const QString& password = {}) {
        clickSplash();
        clerk.answerText(password);
        return main_menu::Start();
    }
    void press(int button) { clerk.click(u"main_menu/Command(%1)"_s.arg(button)); }
    static QStringList storedPassword() {
        return ScratchStore::rows(u"SELECT contents FROM zSysFunc WHERE Code=123"_s);
    }
    static QList<QWidget*> shownForms() {
        QList<QWidget*> shown;
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (widget->isVisible() && qobject_cast<Form*>(widget)) shown += widget;
        return shown;
    }

    ScratchStore store{false};
};

TEST_F(MainMenu, StartsBySplashStoreAndLogin) {
    ASSERT_TRUE(start());
    EXPECT_EQ(clerk.said(), (QStringList{u"Akarix"_s, u"パスワードを入力してください。"_s}));
    EXPECT_TRUE(clerk.isOpen(u"main_menu"_s));
    EXPECT_EQ(clerk.focusedName(), u"Command(0)"_s);
    EXPECT_EQ(gTaxRate, Currency(5));
}

TEST_F(MainMenu, TheSplashGoesByItself) {
    clerk.expect(u"Opening_frm"_s);
    clerk.answerText({});
    EXPECT_TRUE(main_menu::Start());
}

TEST_F(MainMenu, ReadsTheSettings) {
    // What is done to the rows, and then: preview, invoice mode, date mode.
    const std::pair<const char*, const char*> cases[] = {
        {"UPDATE zSysFunc SET contents='2' WHERE Code=2", "0 1 2"},
        {"UPDATE zSysFunc SET contents='x7y' WHERE Code=100", "1 7 2"},
        {"DELETE FROM zSysFunc", "0 0 2"},
        {"UPDATE UserOP SET contents='1' WHERE Code=1", "1 1 1"},
        {"DELETE FROM UserOP WHERE Code=1", "1 1 2"},
        {"DELETE FROM UserOP", "1 1 0"},
    };
    for (const auto& [statement, read] : cases) {
        const ScratchStore fresh(false);
        prepare(statement);
        gPrintPreview = read[0] != '1';
        gInvoiceMode = 9;
        gDateMode = 0;
        ASSERT_TRUE(start());
        EXPECT_EQ(u"%1 %2 %3"_s.arg(gPrintPreview).arg(gInvoiceMode).arg(gDateMode), QString(read))
            << statement;
        clerk.clearDesk();
        CloseDb();
    }
    gPrintPreview = false;
}

TEST_F(MainMenu, PrintingFollowsItsSettingAtOnce) {
    ASSERT_TRUE(start());
    for (const auto& [typed, preview] : {std::pair{"1", true}, {"", false}, {"x", false}}) {
        press(18);
        gPrintPreview = !preview;
        clerk.find<TextBox>("ebox(2)").SetText(typed);
        EXPECT_EQ(gPrintPreview, !preview) << "not before it is saved";
        clerk.click("Btn(1)");
        EXPECT_EQ(gPrintPreview, preview) << typed;
    }
    gPrintPreview = false;
}

TEST_F(MainMenu, TakesTheExactPasswordOnce) {
    setPassword(u"Gas1"_s);
    for (const char* wrong : {"gas1", "Gas1 ", " Gas1", ""}) {
        clickSplash();
        clerk.answerText(QString(wrong));
        clerk.answerAlert();
        EXPECT_FALSE(main_menu::Start()) << wrong;
        EXPECT_EQ(clerk.lastSaid(), u"パスワードが異なります。"_s);
        EXPECT_EQ(gDb, nullptr);
        EXPECT_EQ(shownForms(), QList<QWidget*>());
    }
    EXPECT_TRUE(start(u"Gas1"_s));
}

TEST_F(MainMenu, EndsWithoutAStore) {
    const auto refused = [this] {
        clickSplash();
        clerk.answerMsgBox();
        EXPECT_FALSE(main_menu::Start());
        EXPECT_EQ(shownForms(), QList<QWidget*>());
        return clerk.lastSaid();
    };
    {
        const StoreClaim byTheCompanion(store.path());
        EXPECT_EQ(
            refused(),
            u"Akarix.MDB は test_shell (%1) が使っています。\n終わってから、もう一度起動してください。"_s.arg(
                QApplication::applicationPid()));
    }
    ASSERT_TRUE(QFile::remove(store.path()));
    EXPECT_TRUE(refused().startsWith(u"エラー番号  3024"_s));
}

TEST_F(MainMenu, ChangesThePassword) {
    setPassword(u"old"_s);
    ASSERT_TRUE(start(u"old"_s));
    struct Case {
        const char* what;
        const char* typed;
        bool yes;
        const char16_t* question;
        const char16_t* stored;
    };
    for (const Case& c : {Case{"refused", "new", false, u"newで更新します。", u"old"},
                          {"an emptied box is the present one", "", true, u"oldで更新します。", u"old"},
                          {"confirmed", "new", true, u"newで更新します。", u"new"}}) {
        clerk.answerText(QString(c.typed));
        clerk.answerConfirm(c.yes);
        press(6);
        EXPECT_EQ(clerk.lastSaid(), QString::fromUtf16(c.question)) << c.what;
        EXPECT_EQ(storedPassword(), QStringList{QString::fromUtf16(c.stored)}) << c.what;
    }
}

TEST_F(MainMenu, EachButtonOpensItsScreenOnce) {
    ASSERT_TRUE(start());
    const std::map<int, QString> screens{
        {0, u"Slip_frm"_s},      {2, u"SlipN2_frm"_s},     {3, u"GTanka_frm"_s},      {4, u"MstHin_frm"_s},
        {5, u"SeikyuPrt_frm"_s}, {7, u"RepoSeikyu_frm"_s}, {8, u"RepoDaichou_frm"_s}, {12, u"MstRte_frm"_s},
        {13, u"MstDeal_frm"_s},  {14, u"MstBnk_frm"_s},    {15, u"MstYubin_frm"_s},   {16, u"Seikyu_frm"_s},
        {17, u"TorZan_frm"_s},   {9, u"Keihoki_frm"_s},    {18, u"etc_frm"_s}};
    for (const auto& [button, screen] : screens) {
        press(button);
        ASSERT_TRUE(clerk.isOpen(screen)) << screen.toStdString();
        const QList<QWidget*> shown = shownForms();
        EXPECT_EQ(clerk.window(), &clerk.form(screen));
        clerk.type(u"77"_s);
        const QString cleared = clerk.text("ebox(0)");
        press(button);
        EXPECT_EQ(shownForms(), shown) << screen.toStdString();
        EXPECT_EQ(clerk.window(), &clerk.form(screen)) << "brought to the front";
        EXPECT_NE(clerk.text("ebox(0)"), cleared) << "and made ready again";
    }
    press(10);
    EXPECT_EQ(static_cast<std::size_t>(shownForms().size()), screens.size() + 1) << "the dead button";
}

TEST_F(MainMenu, AllShiftKeysOnTheBareBoardOpenTheSettingsRows) {
    ASSERT_TRUE(start());
    QWidget& menu = clerk.form(u"main_menu"_s);
    const QPoint bare(3, 3);
    const Qt::KeyboardModifiers all = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;
    QTest::mouseClick(&menu, Qt::LeftButton, Qt::ControlModifier | Qt::AltModifier, bare);
    EXPECT_EQ(shownForms().size(), 1);
    clerk.click(clerk.control("Command(12)"), all);
    EXPECT_EQ(clerk.window(), &clerk.form(u"MstRte_frm"_s)) << "a press on the button";
    QTest::mouseClick(&menu, Qt::RightButton, all, bare);
    EXPECT_TRUE(clerk.isOpen(u"SysFunc_frm"_s));
    EXPECT_EQ(clerk.focusedName(), u"ebox(0)"_s);
}

TEST_F(MainMenu, TheBoardIsScaledWithItsWindow) {
    ASSERT_TRUE(start());
    clerk.settle();
    Form& menu = clerk.form(u"main_menu"_s);
    const QWidget& button = clerk.control("Command(18)");
    const QRect before = button.geometry();
    const int letters = button.fontInfo().pixelSize();
    menu.resize(menu.width() * 2, menu.height() * 3);
    clerk.settle();
    EXPECT_EQ(button.geometry(),
              QRect(before.left() * 2, before.top() * 3, before.width() * 2, before.height() * 3));
    EXPECT_EQ(button.fontInfo().pixelSize(), letters * 2);
}

TEST_F(MainMenu, ClosingTheMenuCopiesTheStoreAndEndsTheProgram) {
    ASSERT_TRUE(start());
    clerk.answerText(u".\\bk"_s);
    clerk.answerConfirm(true);
    press(11);
    press(13);
    QTimer::singleShot(0, &clerk, [this] { clerk.form(u"main_menu"_s).close(); });
    clerk.expect(u"Alert_frm"_s, [this](QWidget&) {
        EXPECT_EQ(gDb, nullptr) << "the file is let go of before it is copied";
        clerk.enter();
    });
    EXPECT_EQ(QApplication::exec(), 0) << "nobody is asked";
    EXPECT_EQ(clerk.lastSaid(), u".\\bk\\へバックアップコピーしました。"_s);
    EXPECT_EQ(QDir(u"bk"_s).entryList(QDir::Files).size(), 1);
    EXPECT_EQ(gWs, nullptr);
}

TEST_F(MainMenu, WithoutABackupPlaceTheEndIsAnError) {
    ASSERT_TRUE(start());
    QTimer::singleShot(0, &clerk, [this] { clerk.form(u"main_menu"_s).close(); });
    clerk.answerMsgBox();
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_TRUE(clerk.lastSaid().startsWith(u"実行時エラー '53'"_s));
    EXPECT_EQ(gDb, nullptr);
}

}  // namespace
}  // namespace akarix
