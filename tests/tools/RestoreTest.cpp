#include <gmock/gmock.h>

#include "platform/forms/SingleInstance.h"
#include "platform/runtime/Literals.h"
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
        QDir().mkpath(u"Drive/D/bk"_s);
        WriteFile(u"BKPath"_s, "d:\\bk\r\n");
        const QByteArray delivered = ContentsOf(DatabaseName());
        withRoute(2);
        QFile::copy(DatabaseName(), tuesday_);
        QFile::copy(DatabaseName(), thursday_);
        BreakPage(thursday_, 3);
        WriteFile(DatabaseName(), delivered);
        withRoute(1);
        today_ = ContentsOf(DatabaseName());
    }

    static void withRoute(int code) {
        OpenDb([](const QString&, const QString&) {});
        ScratchStore::run(u"INSERT INTO Rte(Code,Namae) VALUES(%1,'本町')"_s.arg(code));
        ScratchStore::run(u"INSERT INTO Syukei(Nen,Tuki) VALUES(2011,%1)"_s.arg(code));
        CloseDb();
    }
    static QStringList setAside() { return QDir().entryList({u"Akarix-*"_s}, QDir::Files, QDir::Name); }

    const ScratchStore store_{false};
    const QString tuesday_ = u"Drive/D/bk/Akarix3.MDB"_s;
    const QString thursday_ = u"Drive/D/bk/Akarix5.MDB"_s;
    QByteArray today_;
};

TEST_F(Restoring, TheCopiesAreListedWithTheirState) {
    const Outcome list = RunAdmin(u"restore"_s);
    EXPECT_EQ(list.code, Done);
    EXPECT_THAT(list.said, AllOf(HasSubstr("3  火"), HasSubstr("2011/02   正常"), HasSubstr("5  木"),
                                 HasSubstr("1 ページが壊れています（3）"), Not(HasSubstr("1  日"))));
    EXPECT_EQ(RunAdmin(u"restore --from Drive"_s).code, Failed);
    QFile::remove(u"BKPath"_s);
    EXPECT_THAT(RunAdmin(u"restore"_s).said, HasSubstr("BKPath がありません"));
    EXPECT_EQ(RunAdmin(u"restore --from Drive/D/bk"_s).said, list.said);
}

TEST_F(Restoring, ACopyTakesThePlaceAndThePresentFileStaysBeside) {
    WriteFile(u"Akarix.MDB-journal"_s, "left by a dead program");
    const Outcome restored = RunAdmin(u"restore 3"_s);
    EXPECT_EQ(restored.code, Done) << restored.said;
    EXPECT_EQ(ContentsOf(DatabaseName()), ContentsOf(tuesday_));
    const QStringList aside = setAside();
    ASSERT_EQ(aside.size(), 2);
    EXPECT_EQ(ContentsOf(aside[0]), today_);
    EXPECT_EQ(aside[1], aside[0] + u"-journal"_s);
    EXPECT_FALSE(QFile::exists(u"Akarix.MDB-journal"_s)) << "it would be played into the copy";
    EXPECT_THAT(restored.said, HasSubstr(aside[0].toStdString()));

    EXPECT_EQ(RunAdmin(u"restore 3"_s).code, Done);
    EXPECT_EQ(setAside().size(), 3) << "a second one within the second has a name of its own";
}

TEST_F(Restoring, WhatMustNotBeDoneIsRefused) {
    const struct {
        const char* arguments;
        int code;
        const char* says;
    } cases[] = {
        {"restore 5", Failed, "--force"},
        {"restore 4", Failed, "控えがありません"},
        {"restore 8", WrongUse, "--help"},
    };
    for (const auto& [arguments, code, says] : cases) {
        const Outcome outcome = RunAdmin(QString::fromLatin1(arguments));
        EXPECT_EQ(outcome.code, code) << arguments;
        EXPECT_THAT(outcome.said, HasSubstr(says));
    }
    {
        const Holder program(DatabaseName());
        const Outcome outcome = RunAdmin(u"restore 3 --force"_s);
        EXPECT_EQ(outcome.code, Failed);
        EXPECT_THAT(outcome.said, HasSubstr("使用中です: sleep"));
    }
    EXPECT_EQ(ContentsOf(DatabaseName()), today_);
    EXPECT_TRUE(setAside().isEmpty());

    EXPECT_EQ(RunAdmin(u"restore 5 --force"_s).code, Done);
    EXPECT_EQ(ContentsOf(DatabaseName()), ContentsOf(thursday_));
}

TEST_F(Restoring, AFileInUseIsNotMadeAnew) {
    const auto refused = [] { return RunAdmin(u"create --force"_s).said; };
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
        EXPECT_EQ(RunAdmin(u"create other.mdb"_s).code, Done) << "the file is guarded, not the machine";
    }
    SingleInstance::KeepIn({});
    EXPECT_EQ(ContentsOf(DatabaseName()), today_);
}

TEST_F(Restoring, WhatADeadOneLeftDoesNotStandInTheWay) {
    const QString name = u"9999999\nakarix-admin\n%1\n"_s.arg(QSysInfo::machineHostName());
    WriteFile(u"Akarix.MDB.lock"_s, name.toUtf8());
    EXPECT_EQ(RunAdmin(u"restore 3"_s).code, Done);
    EXPECT_FALSE(QFile::exists(u"Akarix.MDB.lock"_s));
}

}  // namespace
}  // namespace akarix::admin
