#include "dialogs/ChoiceForm.h"

#include <QVBoxLayout>

#include "dialogs/DialogLayout.h"
#include "platform/forms/CommandButton.h"
#include "platform/runtime/Literals.h"

namespace akarix {

ChoiceForm::ChoiceForm(const QString& name, const QString& caption, int safeIndex)
    : Form(name, caption),
      safeIndex_(safeIndex),
      Frame1(&Named(new Frame, u"Frame1"_s)),
      Btn(&Named(new CommandButton(u"OK"_s, nullptr, ButtonWeight::Confirms), u"Btn"_s)) {
    auto* choices = new QVBoxLayout(Frame1);
    choices->setContentsMargins(16, 12, 16, 12);
    choices->setSpacing(10);
    for (int i = 0; i < 2; ++i) {
        OptionButton& option = OptBtn.add(i, new OptionButton);
        SetTabIndex(&option, i);
        choices->addWidget(&option);
    }
    SetTabIndex(Btn, 2);
    LayOutDialog(*this, Icon::Question, u"Image1"_s, *Frame1, Btn);
    on(Btn, &CommandButton::Click, [this] { Hide(); });
}

void ChoiceForm::Prepare(const QString& question, const QString& first, const QString& second) {
    Frame1->SetCaption(question);
    OptBtn(0).SetCaption(first);
    OptBtn(1).SetCaption(second);
    OptBtn(0).SetValue(true);
    SetFocus(&OptBtn(0));
}

void ChoiceForm::QueryUnload(bool& cancel) {
    if (!isVisible()) return;
    OptBtn(safeIndex_).SetValue(true);
    cancel = true;
    Hide();
}

}  // namespace akarix
