#pragma once

#include "platform/forms/Form.h"
#include "platform/runtime/Currency.h"

namespace akarix {

class ComboBox;
class MemoBox;
class TextBox;

/// The memo calculator 電卓: an expression, Enter, an answer with a chosen number of decimals.
class Dentaku_frm : public Form {
 public:
    Dentaku_frm();
    void init();

    /// Writes the value with the chosen decimals into the answer box, and gives that text.
    QString ShowAnswer(Currency value);

 private:
    void answerMemo();
    void reformatAnswer();

    MemoBox* eSiki_;
    TextBox* eAns_;
    ComboBox* Combo1_;
    bool inCorner_ = false;
};

}  // namespace akarix
