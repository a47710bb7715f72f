#include "debit/TrapDebit.h"

#include "dialogs/ShowAlert.h"
#include "platform/runtime/RuntimeError.h"
#include "values/NumStr.h"

namespace akarix {

namespace {

QString wordsFor(const RuntimeError& error) {
    constexpr int kDiskFull = 61;
    constexpr int kDiskNotReady = 71;
    switch (error.number()) {
        case kDiskFull:
            return QStringLiteral("フロッピーがいっぱいです。");
        case kDiskNotReady:
            return QStringLiteral("フロッピーが入っていません。");
        default:
            return QStringLiteral("エラー") + NumStr(error.number()) + u'\r' + error.description();
    }
}

}  // namespace

void TrapDebit(const std::function<void()>& action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        ShowAlert(wordsFor(error));
    }
}

}  // namespace akarix
