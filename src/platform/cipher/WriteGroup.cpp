#include "platform/cipher/WriteGroup.h"

#include <QCoreApplication>
#include <thread>
#include <utility>

#include "platform/runtime/Action.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {
namespace {

constexpr std::chrono::milliseconds kLongest{50};
// Without a pause the next group begins before another desk has polled for the lock once.
constexpr std::chrono::milliseconds kPause{3};
constexpr int kCommitTries = 3;

}  // namespace

WriteGroup::WriteGroup(sqlite3* connection)
    : connection_(connection),
      begin_(Prepare(connection, "BEGIN IMMEDIATE")),
      commit_(Prepare(connection, "COMMIT")) {
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { commitOutOfTurn(); });
}

WriteGroup::~WriteGroup() = default;

void WriteGroup::begin() {
    raisePending();
    if (open_) return;
    Run(connection_, begin_.get());
    open_ = true;
    opened_ = Clock::now();
    if (Action::UnderWay() && QCoreApplication::instance()) timer_.start(kLongest);
}

void WriteGroup::end() {
    if (!Action::UnderWay()) {
        commit();
    } else if (Clock::now() - opened_ >= kLongest) {
        commit();
        std::this_thread::sleep_for(kPause);
    }
}

void WriteGroup::failed() {
    if (!Action::UnderWay() || sqlite3_get_autocommit(connection_) != 0) rollback();
}

void WriteGroup::commit() {
    raisePending();
    if (!open_) return;
    timer_.stop();
    for (int attempt = 1;; ++attempt) {
        try {
            Run(connection_, commit_.get());
            open_ = false;
            return;
        } catch (const RuntimeError& error) {
            open_ = sqlite3_get_autocommit(connection_) == 0;
            constexpr int kLocked = 3260;
            if (!open_ || error.number() != kLocked || attempt == kCommitTries) throw;
        }
    }
}

void WriteGroup::rollback() {
    timer_.stop();
    if (std::exchange(open_, false) && sqlite3_get_autocommit(connection_) == 0)
        sqlite3_exec(connection_, "ROLLBACK", nullptr, nullptr, nullptr);
}

void WriteGroup::commitOutOfTurn() {
    try {
        commit();
    } catch (...) {
        // A group that is still open waits for the next commit; one that is lost must be told.
        if (!open_) pending_ = std::current_exception();
    }
}

void WriteGroup::raisePending() {
    if (pending_) std::rethrow_exception(std::exchange(pending_, nullptr));
}

}  // namespace akarix
