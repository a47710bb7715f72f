#include "platform/forms/SingleInstance.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <memory>

#include "platform/runtime/MachineMark.h"

namespace akarix {
namespace {

/// The second process of the tests below: takes the guard, says so, and waits to be ended.
TEST(SingleInstanceChild, HoldsTheGuard) {
    if (!qEnvironmentVariableIsSet("AKARIX_TEST_GUARD_CHILD")) return;
    SingleInstance::KeepIn(qEnvironmentVariable("AKARIX_TEST_GUARD_CHILD"));
    const SingleInstance guard;
    puts(guard.PrevInstance() ? "second" : "first");
    fflush(stdout);
    QThread::sleep(60);
}

class Guard : public testing::Test {
 protected:
    Guard() { SingleInstance::KeepIn(folder.path()); }
    ~Guard() override { SingleInstance::KeepIn({}); }

    std::unique_ptr<QProcess> startChild() {
        auto child = std::make_unique<QProcess>();
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("AKARIX_TEST_GUARD_CHILD", folder.path());
        child->setProcessEnvironment(environment);
        child->start(QCoreApplication::applicationFilePath(),
                     {"--gtest_filter=SingleInstanceChild.*", "--gtest_brief=1"});
        return child;
    }
    static QByteArray firstWord(QProcess& child) {
        while (!child.canReadLine() && child.waitForReadyRead(20000)) {
        }
        return child.readLine().trimmed();
    }

    QTemporaryDir folder;
};

TEST_F(Guard, TheSecondProcessSeesTheFirstUntilItIsKilled) {
    auto first = startChild();
    EXPECT_EQ(firstWord(*first), "first");
    EXPECT_TRUE(SingleInstance().PrevInstance());
    EXPECT_EQ(SingleInstance::RunningIn(), QDir::current().canonicalPath());
    first->kill();
    first->waitForFinished();
    EXPECT_EQ(SingleInstance::RunningIn(), std::nullopt);
    auto own = std::make_unique<SingleInstance>();
    EXPECT_FALSE(own->PrevInstance());
    auto second = startChild();
    EXPECT_EQ(firstWord(*second), "second");
    second->kill();
    second->waitForFinished();
    own.reset();
    EXPECT_FALSE(SingleInstance().PrevInstance()) << "given back at its end";
}

TEST_F(Guard, IsForEveryUserOfTheMachine) {
    EXPECT_TRUE(QFile::permissions(MachineMarkFolder()) & QFile::WriteOther);
    const mode_t strict = umask(077);
    const SingleInstance guard;
    umask(strict);
    EXPECT_TRUE(QFile::permissions(folder.filePath("akarix.lock")) & QFile::WriteOther);
    QFile::setPermissions(folder.filePath("akarix.lock"), QFile::ReadOwner);
    EXPECT_TRUE(SingleInstance().PrevInstance()) << "of somebody who let it only be read";
}

}  // namespace
}  // namespace akarix
