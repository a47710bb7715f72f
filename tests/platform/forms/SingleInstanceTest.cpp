#include "platform/forms/SingleInstance.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <memory>

namespace akarix {
namespace {

/// The second process of the tests below: takes the guard, says so, and waits to be ended.
TEST(SingleInstanceChild, HoldsTheGuard) {
    if (!qEnvironmentVariableIsSet("AKARIX_TEST_GUARD_CHILD")) return;
    const SingleInstance guard;
    puts(guard.PrevInstance() ? "second" : "first");
    fflush(stdout);
    QThread::sleep(60);
}

class Guard : public testing::Test {
 protected:
    Guard() { qputenv("XDG_CACHE_HOME", folder.path().toLocal8Bit()); }
    ~Guard() override { qunsetenv("XDG_CACHE_HOME"); }

    std::unique_ptr<QProcess> startChild() {
        auto child = std::make_unique<QProcess>();
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("AKARIX_TEST_GUARD_CHILD", "1");
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
    first->kill();
    first->waitForFinished();
    EXPECT_FALSE(SingleInstance().PrevInstance());
}

TEST_F(Guard, GivesTheGuardBackAtItsEnd) {
    auto guard = std::make_unique<SingleInstance>();
    EXPECT_FALSE(guard->PrevInstance());
    auto second = startChild();
    EXPECT_EQ(firstWord(*second), "second");
    second->kill();
    second->waitForFinished();
    guard.reset();
    EXPECT_FALSE(SingleInstance().PrevInstance());
}

}  // namespace
}  // namespace akarix
