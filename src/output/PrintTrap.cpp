#include "output/PrintTrap.h"

#include "dialogs/ShowAlert.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

void TrapPrinting(const std::function<void()>& print) {
    constexpr int kCancelled = 32755;
    try {
        print();
    } catch (const RuntimeError& error) {
        if (error.number() == kCancelled) return;
        ShowAlert(QString::number(error.number()) + error.description());
    }
}

}  // namespace akarix
