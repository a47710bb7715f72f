#include "dialogs/Request_frm.h"

#include "dialogs/DialogLayout.h"
#include "platform/forms/Label.h"
#include "platform/forms/Style.h"
#include "platform/forms/TextBox.h"
#include "platform/runtime/Literals.h"

#include <QVBoxLayout>

namespace akarix {

Request_frm::Request_frm()
    : Form(u"Request_frm"_s, u"Nagomi Systems"_s),
      Message(&Named(new Label, u"Message"_s)),
      ebox(&Named(new TextBox, u"ebox"_s)) {
    auto* words = new QWidget;
    auto* lines = new QVBoxLayout(words);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(10);
    lines->addWidget(Message);
    lines->addWidget(ebox);
    ebox->setMinimumWidth(BoxWidth(40));
    LayOutDialog(*this, Icon::Keyboard, u"Image"_s, *words, nullptr);
    SetTabIndex(ebox, 0);
    on(ebox, &TextBox::KeyDown, [this](KeyEvent& event) { ebox_KeyDown(event); });
}

void Request_frm::Prepare(const QString& prompt, const QString& preset) {
    Message->SetCaption(prompt);
    ebox->SetText(preset);
    SetFocus(ebox);
    ebox->selectAll();
}

QString Request_frm::Answer() const {
    return ebox->Text();
}

void Request_frm::QueryUnload(bool& cancel) {
    // There is no cancelling, only an empty answer; what stands in the box when the window is closed must
    // not pass for one that was given.
    ebox->SetText(QString());
    cancel = true;
    Hide();
}

void Request_frm::ebox_KeyDown(KeyEvent& event) {
    if (event.KeyCode == key::Tab) event.KeyCode = event.Shift == ShiftMask ? key::Up : key::Return;
    if (event.KeyCode == key::Return) Hide();
}

}  // namespace akarix
