#pragma once

#include <sqlcipher/sqlite3.h>

#include <QTimer>
#include <chrono>
#include <exception>

#include "platform/cipher/Sqlite.h"
#include "platform/runtime/ActionListener.h"

namespace akarix {

/// The transaction that holds the writes of one action together. A commit costs some hundred times what a
/// statement does, so each group is committed when the action ends, or after 50 ms, when others get their
/// turn at the file. The timer commits a group whose action waits for the operator, in a dialog say.
class WriteGroup : private ActionListener {
 public:
    explicit WriteGroup(sqlite3* connection);
    ~WriteGroup();

    /// Before a write: opens the group. Raises what an earlier commit out of turn has failed with.
    void begin();
    /// After it: commits when the time is up, or when no action is under way.
    void end();
    /// After a failed statement. The earlier ones of the group stay, unless the engine has rolled all back.
    void failed();
    /// Commits the group, if there is one.
    void commit();
    /// Drops it.
    void rollback();

 private:
    using Clock = std::chrono::steady_clock;

    void actionEnded() override { commit(); }
    void commitOutOfTurn();
    void raisePending();

    sqlite3* connection_;
    Statement begin_;
    Statement commit_;
    bool open_ = false;
    Clock::time_point opened_;
    QTimer timer_;
    std::exception_ptr pending_;
};

}  // namespace akarix
