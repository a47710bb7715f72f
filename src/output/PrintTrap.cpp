#include "output/PrintTrap.h"

#include "dialogs/ShowAlert.h"
#include "output/EX.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

void TrapPrinting(const std::function<void()>& print) {
    try {
        try {
            print();
        } catch (const RuntimeError& error) {
            if (error.number() != CancelledByOperator) throw;
            ExcelClose();  // of a run that was stopped, what is finished is printed
        }
    } catch (const RuntimeError& error) {
        ShowAlert(QString::number(error.number()) + error.description());
    }
}

}  // namespace akarix
