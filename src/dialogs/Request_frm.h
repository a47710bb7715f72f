#pragma once

#include "platform/forms/Form.h"

namespace akarix {

class Label;
class TextBox;

/// A question answered with one line of text. Enter hides it; it stays loaded for the next question.
class Request_frm : public Form {
    Q_OBJECT

 public:
    Request_frm();
    void Prepare(const QString& prompt, const QString& preset);
    QString Answer() const;

 protected:
    void QueryUnload(bool& cancel) override;

 private:
    void ebox_KeyDown(KeyEvent& event);

    Label* Message;
    TextBox* ebox;
};

}  // namespace akarix
