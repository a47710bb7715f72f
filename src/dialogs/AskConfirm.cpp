#include "dialogs/AskConfirm.h"

#include "dialogs/ChoiceForm.h"

namespace akarix {
namespace {

template <class F>
bool Ask(const QString& question, const QString& first, const QString& second) {
    auto& form = Form::Instance<F>();
    form.Prepare(question, first, second);
    form.ShowModal();
    const bool firstChosen = form.FirstChosen();
    form.Unload();
    return firstChosen;
}

}  // namespace

bool AskConfirm(const QString& question, const QString& first, const QString& second) {
    return Ask<Confirm_frm>(question, first, second);
}

bool AskConfirmRev(const QString& question, const QString& first, const QString& second) {
    return Ask<gyakuConfirm_frm>(question, first, second);
}

}  // namespace akarix
