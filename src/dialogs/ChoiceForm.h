#pragma once

#include "platform/forms/Choice.h"
#include "platform/forms/Form.h"
#include "platform/runtime/Literals.h"

namespace akarix {

class CommandButton;

/// A question with two answers under one another, the first chosen at the start. Arrow keys choose, Enter
/// goes to the button, and Enter there confirms.
class ChoiceForm : public Form {
    Q_OBJECT

 public:
    void Prepare(const QString& question, const QString& first, const QString& second);
    bool FirstChosen() const { return OptBtn(0).Value(); }

 protected:
    /// \param safeIndex the answer that closing the window gives.
    ChoiceForm(const QString& name, const QString& caption, int safeIndex);
    void QueryUnload(bool& cancel) override;

 private:
    int safeIndex_;
    Frame* Frame1;
    ControlArray<OptionButton> OptBtn{u"OptBtn"_s};
    CommandButton* Btn;
};

/// Closing the window refuses by the second answer.
class Confirm_frm : public ChoiceForm {
    Q_OBJECT

 public:
    Confirm_frm() : ChoiceForm(u"Confirm_frm"_s, u"選択"_s, 1) {}
};

/// Closing the window refuses by the first answer.
class gyakuConfirm_frm : public ChoiceForm {
    Q_OBJECT

 public:
    gyakuConfirm_frm() : ChoiceForm(u"gyakuConfirm_frm"_s, u"変更"_s, 0) {}
};

}  // namespace akarix
