#include "clerk/Clerk.h"
#include "month/Desk.h"
#include "month/Hands.h"
#include "month/Steps.h"
#include "platform/runtime/Literals.h"

namespace akarix::month {

namespace {

/// Walked through, with what is given typed on the way, and saved.
void KeepPage(Desk& desk, int button, const QString& form, const QString& save, const QString& picture,
              const std::map<QString, QString>& typed = {}) {
    OpenFromMenu(desk, button, form);
    WalkTo(desk, save, typed);
    TakeForm(desk, picture, form);
    desk.clerk.enter();
    CloseForm(desk, form);
}

}  // namespace

void KeepSettings(Desk& desk) {
    KeepPage(desk, 18, u"etc_frm"_s, u"Btn(1)"_s, u"settings"_s);
    desk.typed.alarmFee = 305;
    desk.typed.acuFee = 1220;
    KeepPage(desk, 9, u"Keihoki_frm"_s, u"Btn"_s, u"lease-fees"_s,
             {{u"ebox(0)"_s, QString::number(desk.typed.alarmFee)},
              {u"ebox(1)"_s, QString::number(desk.typed.acuFee)}});
}

}  // namespace akarix::month
