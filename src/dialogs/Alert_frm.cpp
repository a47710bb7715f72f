#include "dialogs/Alert_frm.h"

#include "dialogs/DialogLayout.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/Label.h"
#include "platform/forms/LineEnds.h"
#include "platform/runtime/Literals.h"

namespace akarix {

Alert_frm::Alert_frm()
    : Form(u"Alert_frm"_s, u"Nagomi Systems"_s),
      Message(&Named(new Label, u"Message"_s)),
      Btn(&Named(new CommandButton(u"OK"_s, nullptr, ButtonWeight::Confirms), u"Btn"_s)) {
    LayOutDialog(*this, Icon::Notice, u"Image1"_s, *Message, Btn);
    SetTabIndex(Btn, 0);
    on(Btn, &CommandButton::Click, [this] { Unload(); });
}

void Alert_frm::SetMessage(const QString& message) {
    Message->SetCaption(ShownLines(message));
}

}  // namespace akarix
