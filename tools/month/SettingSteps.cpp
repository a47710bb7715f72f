#include "clerk/Clerk.h"
#include "month/Desk.h"
#include "month/Hands.h"
#include "month/Steps.h"

namespace akarix::month {

namespace {

/// Walked through and saved as it stands.
void keepPage(Desk& desk, int button, const QString& form, const QString& save, const QString& picture) {
    openFromMenu(desk, button, form);
    walkTo(desk, save, {});
    takeForm(desk, picture, form);
    desk.clerk.enter();
    closeForm(desk, form);
}

}  // namespace

void keepSettings(Desk& desk) {
    keepPage(desk, 18, QStringLiteral("etc_frm"), QStringLiteral("Btn(1)"), QStringLiteral("settings"));
    keepPage(desk, 9, QStringLiteral("Keihoki_frm"), QStringLiteral("Btn"), QStringLiteral("lease-fees"));
}

}  // namespace akarix::month
