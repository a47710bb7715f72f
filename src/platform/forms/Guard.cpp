#include "platform/forms/Guard.h"

#include <QString>
#include <QtGlobal>
#include <new>

#include "platform/forms/MsgBox.h"
#include "platform/forms/Notice.h"
#include "platform/runtime/Action.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {
namespace {

void RunInAction(const std::function<void()>& handler) {
    Action action;
    try {
        handler();
        action.end();
    } catch (...) {
        ForgetNotices();
        throw;
    }
}

bool ShowAndFail(const RuntimeError& error) {
    ShowRuntimeError(error);
    return false;
}

}  // namespace

bool RunGuarded(const std::function<void()>& handler) {
    try {
        RunInAction(handler);
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

}  // namespace akarix
