#include "clerk/Clerk.h"
#include "month/Desk.h"
#include "month/Hands.h"
#include "month/Steps.h"

namespace akarix::month {

namespace {

/// Walked through, with what is given typed on the way, and saved.
void keepPage(Desk& desk, int button, const QString& form, const QString& save, const QString& picture,
              const std::map<QString, QString>& typed = {}) {
    openFromMenu(desk, button, form);
    walkTo(desk, save, typed);
    takeForm(desk, picture, form);
    desk.clerk.enter();
    closeForm(desk, form);
}

}  // namespace

void keepSettings(Desk& desk) {
    keepPage(desk, 18, QStringLiteral("etc_frm"), QStringLiteral("Btn(1)"), QStringLiteral("settings"));
    desk.typed.alarmFee = 305;
    desk.typed.acuFee = 1220;
    keepPage(desk, 9, QStringLiteral("Keihoki_frm"), QStringLiteral("Btn"), QStringLiteral("lease-fees"),
             {{QStringLiteral("ebox(0)"), QString::number(desk.typed.alarmFee)},
              {QStringLiteral("ebox(1)"), QString::number(desk.typed.acuFee)}});
}

}  // namespace akarix::month
