#include "debit/TrapDebit.h"

#include "dialogs/ShowAlert.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"
#include "values/NumStr.h"

namespace akarix {

namespace {

QString WordsFor(const RuntimeError& error) {
    constexpr int kDiskFull = 61;
    constexpr int kDiskNotReady = 71;
    switch (error.number()) {
        case kDiskFull:
            return u"フロッピーがいっぱいです。"_s;
        case kDiskNotReady:
            return u"フロッピーが入っていません。"_s;
        default:
            return u"エラー"_s + NumStr(error.number()) + u'\r' + error.description();
    }
}

}  // namespace

void TrapDebit(const std::function<void()>& action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        ShowAlert(WordsFor(error));
    }
}

}  // namespace akarix
