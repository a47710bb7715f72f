#include "dialogs/AskText.h"

#include "dialogs/Request_frm.h"

namespace akarix {

QString AskText(const QString& prompt, const QString& preset) {
    auto& form = Form::Instance<Request_frm>();
    form.Prepare(prompt, preset);
    form.ShowModal();
    return form.Answer();
}

}  // namespace akarix
