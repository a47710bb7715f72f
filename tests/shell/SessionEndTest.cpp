#include "platform/forms/SessionEnd.h"

#include <QApplication>
#include <QProcess>
#include <QTest>
#include <QTimer>
#include <csignal>

#include "masters/MstRte_frm.h"
#include "platform/forms/MsgBox.h"
#include "platform/forms/TextBox.h"
#include "shell/main_menu.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

class SessionsEnd : public ScreenTest {
 protected:
    void SetUp() override {
        qputenv("XDG_CACHE_HOME", store.path(u"cache"_qs).toUtf8());
        QFile place(u"BKPath"_qs);
        ASSERT_TRUE(place.open(QFile::WriteOnly));
        place.write(".\\bk\r\n");
    }
    void TearDown() override {
        SessionEnd::Await([] {});
        ScreenTest::TearDown();
    }
    static QStringList copies() { return QDir(u"bk"_qs).entryList(QDir::Files); }

    ScratchStore store{false};
};

TEST_F(SessionsEnd, WhateverStandsTheProgramLeavesByItsCopy) {
    const std::map<const char*, std::function<void()>> desks = {
        {"typed text", [this] { clerk.type(u"77"_qs); }},
        {"a question to delete",
         [this] {
             clerk.fill(u"1"_qs);
             clerk.expect(u"Confirm_frm"_qs);
             QTimer::singleShot(20, &clerk, [] { raise(SIGHUP); });
             clerk.click("Btn(1)");
         }},
        {"an error box", [] {
             QTimer::singleShot(20, qApp, [] { raise(SIGTERM); });
             MsgBox(u"誤り"_qs, u"Akarix"_qs);
         }}};
    for (const auto& [what, prepare] : desks) {
        const ScratchStore fresh(false);
        ASSERT_TRUE(OpenDb([](const QString&, const QString&) {}));
        ScratchStore::run(u"INSERT INTO Rte(Code,Namae) VALUES(1,'北町')"_qs);
        CloseDb();
        ASSERT_TRUE(QFile::copy(store.path(u"BKPath"_qs), u"BKPath"_qs));
        clerk.expect(u"Opening_frm"_qs, [this](QWidget&) { clerk.click("Image1"); });
        clerk.answerText({});
        ASSERT_TRUE(main_menu::Start());
        OpenScreen<MstRte_frm>();
        clerk.bringToFront(u"MstRte_frm"_qs);
        if (QString(what) == u"an error box"_qs) clerk.expect(u"MsgBox"_qs);
        QTimer::singleShot(0, qApp, [&prepare = prepare] {
            prepare();
            raise(SIGTERM);
        });
        EXPECT_EQ(QApplication::exec(), 0) << what;
        EXPECT_EQ(copies().size(), 1) << what;
        EXPECT_EQ(gDb, nullptr) << what;
        ASSERT_TRUE(OpenDb([](const QString&, const QString&) {}));
        EXPECT_EQ(ScratchStore::rows(u"SELECT Code,Namae FROM Rte"_qs), QStringList{u"1|北町"_qs}) << what;
        CloseDb();
        clerk.clearDesk();
    }
}

/// Whether a process has a handler of its own for a signal.
bool catches(qint64 process, int signal) {
    QFile status(u"/proc/%1/status"_qs.arg(process));
    if (!status.open(QFile::ReadOnly)) return false;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("SigCgt:"))
            return (line.mid(7).trimmed().toULongLong(nullptr, 16) >> (signal - 1)) & 1;
    }
    return false;
}

TEST_F(SessionsEnd, OfARealProgram) {
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedChannels);
    program.start(QStringLiteral(AKARIX_PROGRAM), {});
    ASSERT_TRUE(program.waitForStarted());
    ASSERT_TRUE(QTest::qWaitFor([&] { return catches(program.processId(), SIGTERM); }, 10000));
    program.terminate();
    ASSERT_TRUE(program.waitForFinished(20000));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_EQ(copies().size(), 1);
}

}  // namespace
}  // namespace akarix
