#include "dialogs/AskConfirm.h"

#include "dialogs/ChoiceForm.h"
#include "platform/runtime/Literals.h"

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

bool AskConfirm(const QString& question) {
    return Ask<Confirm_frm>(question, u"はい"_s, u"いいえ"_s);
}

bool AskConfirmRev(const QString& question, const QString& goOn) {
    return Ask<gyakuConfirm_frm>(question, u"いいえ"_s, goOn);
}

}  // namespace akarix
