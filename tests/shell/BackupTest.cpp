#include "shell/Backup.h"

#include "platform/runtime/Calendar.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

class Backup : public ScreenTest {
 protected:
    static void setPlace(const QByteArray& line) {
        QFile file(u"BKPath"_s);
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
        ASSERT_TRUE(gDb != nullptr || OpenDb([](const QString&, const QString&) {}));
        ScratchStore::run(u"INSERT INTO Rte(Code) VALUES(%1)"_s.arg(code));
        CloseDb();
    }
    static QStringList copies() { return QDir(u"Drive/D/bk"_s).entryList(QDir::Files); }

    ScratchStore store;
};

TEST_F(Backup, ThePlaceIsOfferedAndKept) {
    clerk.expect(u"Request_frm"_s, [this](QWidget&) {
        EXPECT_EQ(clerk.text("ebox"), QDir::homePath() + u"/Backup"_s);
        clerk.enter();
    });
    clerk.answerConfirm(false);
    ChangeBackupPlace();
    EXPECT_EQ(clerk.said().first(), u"バックアップの場所。"_s);
    EXPECT_FALSE(QFile::exists(u"BKPath"_s)) << "refused";

    changePlace(u"d:\\控え"_s, true);
    EXPECT_EQ(clerk.lastSaid(), u"d:\\控えで更新します。"_s);
    EXPECT_EQ(bytesOf(u"BKPath"_s), "d:\\\x8d\x54\x82\xa6\r\n");
    changePlace({}, true);
    EXPECT_EQ(clerk.lastSaid(), u"d:\\控えで更新します。"_s) << "an emptied box is the old place";
    changePlace(u"e:\\"_s, false);
    EXPECT_EQ(bytesOf(u"BKPath"_s), "d:\\\x8d\x54\x82\xa6\r\n");

    ASSERT_TRUE(QFile::rename(u"BKPath"_s, u"BKPATH"_s)) << "as an older system wrote it";
    changePlace({}, true);
    EXPECT_EQ(clerk.lastSaid(), u"d:\\控えで更新します。"_s);
    changePlace(u"e:\\"_s, true);
    EXPECT_EQ(bytesOf(u"BKPATH"_s), "e:\\\r\n");
    EXPECT_FALSE(QFile::exists(u"BKPath"_s));
}

TEST_F(Backup, AWeekOfCopies) {
    ASSERT_TRUE(QDir().mkpath(u"Drive/D"_s));
    setPlace("d:\\bk\r\n");
    // A Sunday, the Saturday behind it, and the Sunday of the week that follows.
    for (const auto& [day, copy] :
         {std::pair{2, u"Akarix1.MDB"_s}, {8, u"Akarix7.MDB"_s}, {9, u"Akarix1.MDB"_s}}) {
        SetClock(DateSerial(2011, 1, day));
        closeWithRoute(day);
        clerk.answerAlert();
        BackUp();
        EXPECT_EQ(clerk.lastSaid(), u"d:\\bk\\へバックアップコピーしました。"_s);
        EXPECT_EQ(bytesOf(u"Drive/D/bk/"_s + copy), bytesOf(u"Akarix.MDB"_s)) << day;
    }
    EXPECT_EQ(copies(), (QStringList{u"Akarix1.MDB"_s, u"Akarix7.MDB"_s}));
}

TEST_F(Backup, AStoppedCopyLeavesTheOlderOne) {
    struct : Progress {
        void stage(const QString&, bool) override {}
        void step(int done, int total) override {
            if (done == total / 2) throw RuntimeError(CancelledByOperator);
        }
    } stopping;
    QFile older(u"copy"_s);
    ASSERT_TRUE(older.open(QFile::WriteOnly));
    older.write("older");
    older.close();
    CloseDb();
    EXPECT_THROW(DBEngine::CopyDatabase(DatabaseName(), u"copy"_s, stopping), RuntimeError);
    EXPECT_EQ(bytesOf(u"copy"_s), "older");
}

TEST_F(Backup, WhatCannotBeCopiedIsPassedOver) {
    SetClock(DateSerial(2011, 1, 2));
    ASSERT_TRUE(QDir().mkpath(u"Drive/D"_s));
    closeWithRoute(1);
    for (const char* place : {"x:\\bk\r\n", "d:\\no\\bk\r\n", "d:\\file\r\n"}) {
        ASSERT_TRUE(QFile::copy(u"Akarix.MDB"_s, u"Drive/D/file"_s) || QFile::exists(u"Drive/D/file"_s));
        setPlace(place);
        BackUp();
    }
    setPlace(store.path("bk").toUtf8() + "\\\r\n");
    clerk.answerAlert();
    BackUp();
    EXPECT_EQ(clerk.lastSaid(),
              QDir::toNativeSeparators(store.path("bk/")) + u"へバックアップコピーしました。"_s);
    setPlace("d:\\bk,daily\r\n");
    clerk.answerAlert();
    BackUp();
    EXPECT_EQ(clerk.lastSaid(), u"d:\\bk\\へバックアップコピーしました。"_s) << "cut at the comma";
    const QByteArray before = bytesOf(u"Drive/D/bk/Akarix1.MDB"_s);
    ASSERT_TRUE(QFile::resize(u"Akarix.MDB"_s, 5000));
    clerk.answerAlert();
    BackUp();
    EXPECT_EQ(clerk.lastSaid(), u"Akarix.MDB が壊れているので、バックアップコピーしませんでした。"_s);
    EXPECT_EQ(bytesOf(u"Drive/D/bk/Akarix1.MDB"_s), before) << "a sound copy is not lost to a damaged file";
    EXPECT_EQ(copies().size(), 1);
    EXPECT_EQ(clerk.said().size(), 3);
}

}  // namespace
}  // namespace akarix
