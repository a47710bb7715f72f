#include "dialogs/ShowAlert.h"

#include "dialogs/Alert_frm.h"

namespace akarix {

void ShowAlert(const QString& message) {
    auto& form = Form::Instance<Alert_frm>();
    form.SetMessage(message);
    form.ShowModal();
}

}  // namespace akarix
