#include <gmock/gmock.h>

#include "platform/forms/SingleInstance.h"
#include "store/StoreClaim.h"
#include "support/ScratchStore.h"
#include "tools/AdminRun.h"

namespace akarix::admin {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

/// Today's file with route 1, a copy of Tuesday with route 2 and a broken one of Thursday.
class Restoring : public testing::Test {
 protected:
    void SetUp() override {
        QDir().mkpath(QStringLiteral("Drive/D/bk"));
        writeFile(QStringLiteral("BKPath"), "d:\\bk\r\n");
        const QByteArray delivered = contentsOf(DatabaseName());
        withRoute(2);
        QFile::copy(DatabaseName(), tuesday_);
        QFile::copy(DatabaseName(), thursday_);
        breakPage(thursday_, 3);
        writeFile(DatabaseName(), delivered);
        withRoute(1);
        today_ = contentsOf(DatabaseName());
    }

    static void withRoute(int code) {
        OpenDb([](const QString&, const QString&) {});
        ScratchStore::run(QStringLiteral("INSERT INTO Rte(Code,Namae) VALUES(%1,'本町')").arg(code));
        ScratchStore::run(QStringLiteral("INSERT INTO Syukei(Nen,Tuki) VALUES(2011,%1)").arg(code));
        CloseDb();
    }
    static QStringList setAside() {
        return QDir().entryList({QStringLiteral("Akarix-*")}, QDir::Files, QDir::Name);
    }

    const ScratchStore store_{false};
    const QString tuesday_ = QStringLiteral("Drive/D/bk/Akarix3.MDB");
    const QString thursday_ = QStringLiteral("Drive/D/bk/Akarix5.MDB");
    QByteArray today_;
};

TEST_F(Restoring, TheCopiesAreListedWithTheirState) {
    const Outcome list = run(QStringLiteral("restore"));
    EXPECT_EQ(list.code, Done);
    EXPECT_THAT(list.said, AllOf(HasSubstr("3  火"), HasSubstr("2011/02   正常"), HasSubstr("5  木"),
                                 HasSubstr("1 ページが壊れています（3）"), Not(HasSubstr("1  日"))));
    EXPECT_EQ(run(QStringLiteral("restore --from Drive")).code, Failed);
    QFile::remove(QStringLiteral("BKPath"));
    EXPECT_THAT(run(QStringLiteral("restore")).said, HasSubstr("BKPath がありません"));
    EXPECT_EQ(run(QStringLiteral("restore --from Drive/D/bk")).said, list.said);
}

TEST_F(Restoring, ACopyTakesThePlaceAndThePresentFileStaysBeside) {
    writeFile(QStringLiteral("Akarix.MDB-journal"), "left by a dead program");
    const Outcome restored = run(QStringLiteral("restore 3"));
    EXPECT_EQ(restored.code, Done) << restored.said;
    EXPECT_EQ(contentsOf(DatabaseName()), contentsOf(tuesday_));
    const QStringList aside = setAside();
    ASSERT_EQ(aside.size(), 2);
    EXPECT_EQ(contentsOf(aside[0]), today_);
    EXPECT_EQ(aside[1], aside[0] + QStringLiteral("-journal"));
    EXPECT_FALSE(QFile::exists(QStringLiteral("Akarix.MDB-journal"))) << "it would be played into the copy";
    EXPECT_THAT(restored.said, HasSubstr(aside[0].toStdString()));

    EXPECT_EQ(run(QStringLiteral("restore 3")).code, Done);
    EXPECT_EQ(setAside().size(), 3) << "a second one within the second has a name of its own";
}

TEST_F(Restoring, WhatMustNotBeDoneIsRefused) {
    const struct {
        const char* arguments;
        int code;
        const char* says;
    } cases[] = {
        {"restore 5", Failed, "--force"},        {"restore 4", Failed, "控えがありません"},
        {"restore 8", WrongUse, "--help"},       {"restore 3 4", WrongUse, "--help"},
        {"restore tuesday", WrongUse, "--help"},
    };
    for (const auto& [arguments, code, says] : cases) {
        const Outcome outcome = run(QString::fromLatin1(arguments));
        EXPECT_EQ(outcome.code, code) << arguments;
        EXPECT_THAT(outcome.said, HasSubstr(says));
    }
    {
        const Holder program(DatabaseName());
        const Outcome outcome = run(QStringLiteral("restore 3 --force"));
        EXPECT_EQ(outcome.code, Failed);
        EXPECT_THAT(outcome.said, HasSubstr("使用中です: sleep"));
    }
    EXPECT_EQ(contentsOf(DatabaseName()), today_);
    EXPECT_TRUE(setAside().isEmpty());

    EXPECT_EQ(run(QStringLiteral("restore 5 --force")).code, Done);
    EXPECT_EQ(contentsOf(DatabaseName()), contentsOf(thursday_));
}

TEST_F(Restoring, AFileInUseIsNotMadeAnew) {
    const auto refused = [] { return run(QStringLiteral("create --force")).said; };
    {
        const Holder program(DatabaseName());
        EXPECT_THAT(refused(), HasSubstr("使用中です"));
    }
    {
        const StoreClaim byAnother(DatabaseName());
        EXPECT_THAT(refused(), HasSubstr("使用中です: test_tools ("));
    }
    {
        // The desktop program of another user, whose open files are not told.
        const QTemporaryDir guards;
        SingleInstance::KeepIn(guards.path());
        const SingleInstance here;
        EXPECT_THAT(refused(), HasSubstr("Akarix が動いています"));
        EXPECT_EQ(run(QStringLiteral("create other.mdb")).code, Done)
            << "the file is guarded, not the machine";
    }
    SingleInstance::KeepIn({});
    EXPECT_EQ(contentsOf(DatabaseName()), today_);
}

TEST_F(Restoring, WhatADeadOneLeftDoesNotStandInTheWay) {
    const QString name = QStringLiteral("9999999\nakarix-admin\n%1\n").arg(QSysInfo::machineHostName());
    writeFile(QStringLiteral("Akarix.MDB.lock"), name.toUtf8());
    EXPECT_EQ(run(QStringLiteral("restore 3")).code, Done);
    EXPECT_FALSE(QFile::exists(QStringLiteral("Akarix.MDB.lock")));
}

}  // namespace
}  // namespace akarix::admin
