#include "platform/forms/SessionEnd.h"

#include <QApplication>
#include <QProcess>
#include <QTest>
#include <QTimer>
#include <csignal>

#include "masters/MstRte_frm.h"
#include "platform/forms/MsgBox.h"
#include "platform/forms/TextBox.h"
#include "platform/runtime/Literals.h"
#include "shell/main_menu.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

class SessionsEnd : public ScreenTest {
 protected:
    void SetUp() override {
        qputenv("XDG_CACHE_HOME", store.path(u"cache"_s).toUtf8());
        QFile place(u"BKPath"_s);
        ASSERT_TRUE(place.open(QFile::WriteOnly));
        place.write(".\\bk\r\n");
    }
    void TearDown() override {
        SessionEnd::Await([] {});
        ScreenTest::TearDown();
    }
    static QStringList copies() { return QDir(u"bk"_s).entryList(QDir::Files); }

    ScratchStore store{false};
};

TEST_F(SessionsEnd, WhateverStandsTheProgramLeavesByItsCopy) {
    const std::map<const char*, std::function<void()>> desks = {
        {"typed text", [this] { clerk.type(u"77"_s); }},
        {"a question to delete",
         [this] {
             clerk.fill(u"1"_s);
             clerk.expect(u"Confirm_frm"_s);
             QTimer::singleShot(20, &clerk, [] { raise(SIGHUP); });
             clerk.click("Btn(1)");
         }},
        {"an error box", [] {
             QTimer::singleShot(20, qApp, [] { raise(SIGTERM); });
             MsgBox(u"誤り"_s, u"Akarix"_s);
         }}};
    for (const auto& [what, prepare] : desks) {
        const ScratchStore fresh(false);
        ASSERT_TRUE(OpenDb([](const QString&, const QString&) {}));
        ScratchStore::run(u"INSERT INTO Rte(Code,Namae) VALUES(1,'北町')"_s);
        CloseDb();
        ASSERT_TRUE(QFile::copy(store.path(u"BKPath"_s), u"BKPath"_s));
        clerk.expect(u"Opening_frm"_s, [this](QWidget&) { clerk.click("Image1"); });
        clerk.answerText({});
        ASSERT_TRUE(main_menu::Start());
        OpenScreen<MstRte_frm>();
        clerk.bringToFront(u"MstRte_frm"_s);
        if (QString(what) == u"an error box"_s) clerk.expect(u"MsgBox"_s);
        QTimer::singleShot(0, qApp, [&prepare = prepare] {
            prepare();
            raise(SIGTERM);
        });
        EXPECT_EQ(QApplication::exec(), 0) << what;
        EXPECT_EQ(copies().size(), 1) << what;
        EXPECT_EQ(gDb, nullptr) << what;
        ASSERT_TRUE(OpenDb([](const QString&, const QString&) {}));
        EXPECT_EQ(ScratchStore::rows(u"SELECT Code,Namae FROM Rte"_s), QStringList{u"1|北町"_s}) << what;
        CloseDb();
        clerk.clearDesk();
    }
}

/// Whether a process has a handler of its own for a signal.
bool Catches(qint64 process, int signal) {
    QFile status(u"/proc/%1/status"_s.arg(process));
    if (!status.open(QFile::ReadOnly)) return false;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("SigCgt:"))
            return (line.mid(7).trimmed().toULongLong(nullptr, 16) >> (signal - 1)) & 1;
    return false;
}

TEST_F(SessionsEnd, OfARealProgram) {
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedChannels);
    program.start(QStringLiteral(AKARIX_PROGRAM), {});
    ASSERT_TRUE(program.waitForStarted());
    ASSERT_TRUE(QTest::qWaitFor([&] { return Catches(program.processId(), SIGTERM); }, 10000));
    program.terminate();
    ASSERT_TRUE(program.waitForFinished(20000));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_EQ(copies().size(), 1);
}

}  // namespace
}  // namespace akarix
