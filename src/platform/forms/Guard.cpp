#include "platform/forms/Guard.h"

#include <QString>
#include <QtGlobal>
#include <new>
#include <utility>
#include <vector>

#include "platform/forms/MsgBox.h"
#include "platform/forms/Notice.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {
namespace {

std::function<void()> beginHook;
std::function<void()> endHook;
std::vector<std::function<void()>> afterwards;
int depth = 0;

class Action {
 public:
    Action() {
        ++depth;
        try {
            if (beginHook) beginHook();
        } catch (...) {
            leave();
            throw;
        }
    }
    ~Action() {
        if (!open_) return;
        ForgetNotices();
        // The handler's own error is on its way up; a second one would only hide it.
        try {
            finish();
        } catch (...) {  // NOLINT(bugprone-empty-catch)
        }
    }
    Action(const Action&) = delete;
    Action& operator=(const Action&) = delete;

    /// What waits for the end, a word of success above all, comes when the writes are on the disk.
    void finish() {
        try {
            if (endHook) endHook();
        } catch (...) {
            ForgetNotices();
            leave();
            throw;
        }
        leave();
    }

 private:
    void leave() {
        open_ = false;
        if (--depth > 0) return;
        for (const auto& step : std::exchange(afterwards, {}))
            step();
    }

    bool open_ = true;
};

bool ShowAndFail(const RuntimeError& error) {
    ShowRuntimeError(error);
    return false;
}

}  // namespace

void SetActionHooks(std::function<void()> begin, std::function<void()> end) {
    beginHook = std::move(begin);
    endHook = std::move(end);
}

bool RunGuarded(const std::function<void()>& handler) {
    try {
        Action action;
        handler();
        action.finish();
        return true;
    } catch (const RuntimeError& error) {
        return ShowAndFail(error);
    } catch (const std::bad_alloc&) {
        return ShowAndFail(RuntimeError(7));
    } catch (const std::exception& error) {
        qWarning("%s", error.what());  // words for a programmer, not for the clerk
        return ShowAndFail(RuntimeError(51));
    }
}

bool ActionUnderWay() {
    return depth > 0;
}

void AfterAction(std::function<void()> step) {
    if (!ActionUnderWay())
        step();
    else
        afterwards.push_back(std::move(step));
}

}  // namespace akarix
