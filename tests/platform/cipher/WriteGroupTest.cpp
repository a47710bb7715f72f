#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <chrono>
#include <csignal>
#include <thread>

#include "platform/cipher/StoreFile.h"
#include "platform/cipher/WriteGroup.h"
#include "platform/dao/StoreFixture.h"
#include "platform/dao/Workspace.h"
#include "platform/runtime/Action.h"

namespace akarix {
namespace {

/// Lets the timer of a waiting group run out.
void Wait() {
    for (int i = 0; i < 80; ++i) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

class WriteGroupTest : public StoreTest {
 protected:
    void SetUp() override {
        database_ = &create();
        MakeTable(*database_, GoodsTable());
        other_ = &open();
    }

    static void add(Database& database, int code) {
        database.Execute(QString("INSERT INTO Goods(Code) VALUES(%1)").arg(code));
    }
    /// Rows that another desk sees.
    int seen() { return count(*other_, "Goods"); }

    Database* database_ = nullptr;
    Database* other_ = nullptr;
};

TEST_F(WriteGroupTest, CommitsAtTheEndOfTheOutermostAction) {
    add(*database_, 1);
    EXPECT_EQ(seen(), 1) << "outside an action at once";
    {
        const Action outer;
        add(*database_, 2);
        {
            const Action inner;
            add(*database_, 3);
        }
        EXPECT_EQ(count(*database_, "Goods"), 3) << "its own writer sees all";
        EXPECT_EQ(seen(), 1);
    }
    EXPECT_EQ(seen(), 3);
}

TEST_F(WriteGroupTest, CommitsBeforeTheEndWhereItMust) {
    const std::pair<std::string, std::function<void()>> cases[] = {
        {"flush", [&] { database_->engine().flush(); }},
        {"definition", [&] { MakeTable(*database_, GoodsTable("Further")); }},
        {"copy", [&] { database_->engine().copyTo(path("Copy.MDB")); }},
        {"time",
         [&] {
             std::this_thread::sleep_for(std::chrono::milliseconds(60));
             database_->Execute("UPDATE Goods SET Rte=1");
         }},
        {"waiting for the operator",
         [&] {
             int none = 0;
             const QCoreApplication application(none, nullptr);
             database_->engine().flush();
             add(*database_, 1000);
             Wait();
         }},
        {"close", [&] { database_->Close(); }},
    };
    int code = 0;
    int expected = 0;
    for (const auto& [name, step] : cases) {
        const Action action;
        add(*database_, ++code);
        EXPECT_EQ(seen(), expected) << name;
        step();
        expected += name == "waiting for the operator" ? 2 : 1;
        EXPECT_EQ(seen(), expected) << name;
    }
}

TEST_F(WriteGroupTest, AFailedStatementTakesNothingWithIt) {
    const auto addOrRaise = [&](int code) {
        database_->engine().insertRow(*database_->engine().catalogue().find("Goods"), {"Code"},
                                      {std::int64_t{code}});
    };
    {
        const Action action;
        add(*database_, 1);
        EXPECT_EQ(ErrorOf([&] { addOrRaise(1); }), 3022);
        EXPECT_EQ(ErrorOf([&] { MakeTable(*database_, GoodsTable()); }), 3010);
        add(*database_, 2);
    }
    EXPECT_EQ(seen(), 2);
    EXPECT_EQ(ErrorOf([&] { addOrRaise(2); }), 3022);
    add(*database_, 3);
    EXPECT_EQ(seen(), 3) << "outside an action, too";
}

TEST_F(WriteGroupTest, ATimedCommitThatTheFileHasNoRoomForIsTold) {
    int none = 0;
    const QCoreApplication application(none, nullptr);
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit whole{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &whole), 0);
    const rlimit full{static_cast<rlim_t>(QFileInfo(path()).size()), whole.rlim_max};
    const auto fill = [&] {
        add(*database_, 1);
        database_->Execute("UPDATE Goods SET Kana='ｱ'");
        for (int code = 2; code < 400; ++code)
            database_->engine().insertRow(*database_->engine().catalogue().find("Goods"), {"Code", "Kana"},
                                          {std::int64_t{code}, "ｱｲｳｴｵｶｷｸｹｺ"});
    };
    EXPECT_NE(ErrorOf([&] {
                  const Action action;
                  fill();
                  setrlimit(RLIMIT_FSIZE, &full);
                  Wait();
                  setrlimit(RLIMIT_FSIZE, &whole);
              }),
              0)
        << "nothing else happened in the action, and still it ends with the error";
    EXPECT_EQ(seen(), 0);
    {
        const Action action;
        fill();
    }
    EXPECT_EQ(seen(), 399) << "told once, and the next action writes again";
}

TEST_F(WriteGroupTest, ATimedCommitThatFindsTheFileLockedIsMadeUpFor) {
    int none = 0;
    const QCoreApplication application(none, nullptr);
    const Connection own = OpenStoreFile(path(), "secret1");
    const Connection reader = OpenStoreFile(path(), "secret1");
    sqlite3_busy_handler(own.get(), nullptr, nullptr);  // does not wait for the reader
    akarix::Run(reader.get(), "BEGIN");
    akarix::Run(reader.get(), "SELECT COUNT(*) FROM Goods");
    {
        WriteGroup group(own.get());
        const Action action;
        group.begin();
        akarix::Run(own.get(), "INSERT INTO Goods(Code) VALUES(1)");
        group.end();
        Wait();
        akarix::Run(reader.get(), "COMMIT");
    }
    EXPECT_EQ(seen(), 1);
}

/// Adds pairs of rows, one pair an action, and tells each that ended.
[[noreturn]] void WriteUntilKilled(const QString& file, int from, int channel) {
    Database& database = *DBEngine::Workspaces(0).OpenDatabase(file, false, false, Connect());
    for (int code = from;; code += 2) {
        {
            const Action action;
            database.Execute(QString("INSERT INTO Goods(Code) VALUES(%1)").arg(code));
            database.Execute(QString("INSERT INTO Goods(Code) VALUES(%1)").arg(code + 1));
        }
        if (write(channel, &code, sizeof code) != sizeof code) _exit(1);
    }
}

TEST_F(WriteGroupTest, AKilledProcessLosesNoActionThatEnded) {
    DBEngine::Workspaces(0).Close();
    int next = 1;
    for (int round = 0; round < 20; ++round) {
        int channel[2];
        ASSERT_EQ(pipe(channel), 0);
        const pid_t child = fork();
        if (child == 0) {
            close(channel[0]);
            WriteUntilKilled(path(), next, channel[1]);
        }
        close(channel[1]);
        int ended = 0;
        ASSERT_EQ(read(channel[0], &ended, sizeof ended), static_cast<ssize_t>(sizeof ended));
        std::this_thread::sleep_for(std::chrono::microseconds(1700 * round));
        kill(child, SIGKILL);
        int code = 0;
        while (read(channel[0], &code, sizeof code) == static_cast<ssize_t>(sizeof code))
            ended = code;
        close(channel[0]);
        waitpid(child, nullptr, 0);

        Database& database = open();
        const int rows = count(database, "Goods");
        EXPECT_GE(rows, ended + 1);
        EXPECT_EQ(rows % 2, 0) << "never half an action as short as this";
        next = rows + 1;
        database.Close();
    }
}

}  // namespace
}  // namespace akarix
