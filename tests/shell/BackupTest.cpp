#include "shell/Backup.h"

#include "platform/runtime/Clock.h"
#include "platform/runtime/DateSerial.h"
#include "platform/runtime/RuntimeError.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

class Backup : public ScreenTest {
 protected:
    static void setPlace(const QByteArray& line) {
        QFile file(u"BKPath"_qs);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(line);
    }
    static QByteArray bytesOf(const QString& path) {
        QFile file(path);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }
    void changePlace(const QString& typed, bool yes) {
        clerk.answerText(typed);
        clerk.answerConfirm(yes);
        ChangeBackupPlace();
    }
    /// The file of one row in the store, as it stands on the disk when the program lets go of it.
    static void closeWithRoute(int code) {
        if (gDb == nullptr) {
            ASSERT_TRUE(OpenDb([](const QString&, const QString&) {}));
        }
        ScratchStore::run(u"INSERT INTO Rte(Code) VALUES(%1)"_qs.arg(code));
        CloseDb();
    }
    static QStringList copies() { return QDir(u"Drive/D/bk"_qs).entryList(QDir::Files); }

    ScratchStore store;
};

TEST_F(Backup, ThePlaceIsOfferedAndKept) {
    clerk.expect(u"Request_frm"_qs, [this](QWidget&) {
        EXPECT_EQ(clerk.text("ebox"), QDir::homePath() + u"/Backup"_qs);
        clerk.enter();
    });
    clerk.answerConfirm(false);
    ChangeBackupPlace();
    EXPECT_EQ(clerk.said().first(), u"バックアップの場所。"_qs);
    EXPECT_FALSE(QFile::exists(u"BKPath"_qs)) << "refused";

    changePlace(u"d:\\控え"_qs, true);
    EXPECT_EQ(clerk.lastSaid(), u"d:\\控えで更新します。"_qs);
    EXPECT_EQ(bytesOf(u"BKPath"_qs), "d:\\\x8d\x54\x82\xa6\r\n");
    changePlace({}, true);
    EXPECT_EQ(clerk.lastSaid(), u"d:\\控えで更新します。"_qs) << "an emptied box is the old place";
    changePlace(u"e:\\"_qs, false);
    EXPECT_EQ(bytesOf(u"BKPath"_qs), "d:\\\x8d\x54\x82\xa6\r\n");

    ASSERT_TRUE(QFile::rename(u"BKPath"_qs, u"BKPATH"_qs)) << "as an older system wrote it";
    changePlace({}, true);
    EXPECT_EQ(clerk.lastSaid(), u"d:\\控えで更新します。"_qs);
    changePlace(u"e:\\"_qs, true);
    EXPECT_EQ(bytesOf(u"BKPATH"_qs), "e:\\\r\n");
    EXPECT_FALSE(QFile::exists(u"BKPath"_qs));
}

TEST_F(Backup, AWeekOfCopies) {
    ASSERT_TRUE(QDir().mkpath(u"Drive/D"_qs));
    setPlace("d:\\bk\r\n");
    struct Case {
        int day;
        const char* copy;
    };
    // A Sunday, the Saturday behind it, and the Sunday of the week that follows.
    for (const Case& c : {Case{2, "Akarix1.MDB"}, {8, "Akarix7.MDB"}, {9, "Akarix1.MDB"}}) {
        SetClock(DateSerial(2011, 1, c.day));
        closeWithRoute(c.day);
        clerk.answerAlert();
        BackUp();
        EXPECT_EQ(clerk.lastSaid(), u"d:\\bk\\へバックアップコピーしました。"_qs);
        EXPECT_EQ(bytesOf(u"Drive/D/bk/"_qs + QString(c.copy)), bytesOf(u"Akarix.MDB"_qs)) << c.day;
    }
    EXPECT_EQ(copies(), (QStringList{u"Akarix1.MDB"_qs, u"Akarix7.MDB"_qs}));
}

TEST_F(Backup, AStoppedCopyLeavesTheOlderOne) {
    struct : Progress {
        void stage(const QString&, bool) override {}
        void step(int done, int total) override {
            if (done == total / 2) throw RuntimeError(CancelledByOperator);
        }
    } stopping;
    QFile older(u"copy"_qs);
    ASSERT_TRUE(older.open(QFile::WriteOnly));
    older.write("older");
    older.close();
    CloseDb();
    EXPECT_THROW(DBEngine::CopyDatabase(DatabaseName(), u"copy"_qs, stopping), RuntimeError);
    EXPECT_EQ(bytesOf(u"copy"_qs), "older");
}

TEST_F(Backup, WhatCannotBeCopiedIsPassedOver) {
    SetClock(DateSerial(2011, 1, 2));
    ASSERT_TRUE(QDir().mkpath(u"Drive/D"_qs));
    closeWithRoute(1);
    for (const char* place : {"x:\\bk\r\n", "d:\\no\\bk\r\n", "d:\\file\r\n"}) {
        ASSERT_TRUE(QFile::copy(u"Akarix.MDB"_qs, u"Drive/D/file"_qs) || QFile::exists(u"Drive/D/file"_qs));
        setPlace(place);
        BackUp();
    }
    setPlace(store.path("bk").toUtf8() + "\\\r\n");
    clerk.answerAlert();
    BackUp();
    EXPECT_EQ(clerk.lastSaid(),
              QDir::toNativeSeparators(store.path("bk/")) + u"へバックアップコピーしました。"_qs);
    setPlace("d:\\bk,daily\r\n");
    clerk.answerAlert();
    BackUp();
    EXPECT_EQ(clerk.lastSaid(), u"d:\\bk\\へバックアップコピーしました。"_qs) << "cut at the comma";
    const QByteArray before = bytesOf(u"Drive/D/bk/Akarix1.MDB"_qs);
    ASSERT_TRUE(QFile::resize(u"Akarix.MDB"_qs, 5000));
    clerk.answerAlert();
    BackUp();
    EXPECT_EQ(clerk.lastSaid(), u"Akarix.MDB が壊れているので、バックアップコピーしませんでした。"_qs);
    EXPECT_EQ(bytesOf(u"Drive/D/bk/Akarix1.MDB"_qs), before) << "a sound copy is not lost to a damaged file";
    EXPECT_EQ(copies().size(), 1);
    EXPECT_EQ(clerk.said().size(), 3);
}

TEST_F(Backup, WithoutAPlaceItFails) {
    CloseDb();
    try {
        BackUp();
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), 53);
    }
}

}  // namespace
}  // namespace akarix
