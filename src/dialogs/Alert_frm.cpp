#include "dialogs/Alert_frm.h"

#include "dialogs/DialogLayout.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/Label.h"
#include "platform/forms/LineEnds.h"

namespace akarix {

Alert_frm::Alert_frm()
    : Form(QStringLiteral("Alert_frm"), QStringLiteral("Nagomi Systems")),
      Message(&Named(new Label, QStringLiteral("Message"))),
      Btn(&Named(new CommandButton(QStringLiteral("OK")), QStringLiteral("Btn"))) {
    LayOutDialog(*this, Icon::Notice, QStringLiteral("Image1"), *Message, Btn);
    SetTabIndex(Btn, 0);
    on(Btn, &CommandButton::Click, [this] { Unload(); });
}

void Alert_frm::SetMessage(const QString& message) {
    Message->SetCaption(ShownLines(message));
}

}  // namespace akarix
