#include "clerk/Clerk.h"
#include "month/Album.h"
#include "month/Desk.h"
#include "month/Hands.h"
#include "month/Steps.h"
#include "month/TypedMonth.h"

namespace akarix::month {

namespace {

const QString slipForm = QStringLiteral("Slip_frm");
const QString paymentForm = QStringLiteral("SlipN2_frm");
const QString billingForm = QStringLiteral("Seikyu_frm");

/// The lookup that a picture opens is kept and left without a pick.
void lookAt(Desk& desk, const QString& picture, const QString& lookup, const QString& name) {
    desk.clerk.expect(lookup, [&desk, name](QWidget& shown) {
        desk.album.take(name, {&shown});
        desk.clerk.closeBox(shown);
    });
    desk.clerk.click(picture);
}

/// A search among the banks is an error: they have a list alone.
void searchBanks(Desk& desk) {
    desk.clerk.expect(QStringLiteral("Help_frm"), [&desk](QWidget& shown) {
        desk.album.take(QStringLiteral("bank-lookup"), {&shown});
        expectPictured(desk, QStringLiteral("MsgBox"), QStringLiteral("error"), Qt::Key_Return);
        desk.clerk.click(QStringLiteral("Btn(0)"));
        desk.clerk.closeBox(shown);
    });
    desk.clerk.click(QStringLiteral("F6(0)"));
}

}  // namespace

void showLookups(Desk& desk) {
    openFromMenu(desk, 0, slipForm);
    lookAt(desk, QStringLiteral("F6(0)"), QStringLiteral("HelpSlip_frm"), QStringLiteral("slip-lookup"));
    closeForm(desk, slipForm);

    openFromMenu(desk, 2, paymentForm);
    walkTo(desk, QStringLiteral("ebox(2)"),
           {{QStringLiteral("ebox(1)"), QString::number(desk.typed.payments.begin()->second.deal)}});
    lookAt(desk, QStringLiteral("F6(0)"), QStringLiteral("HelpN_frm"), QStringLiteral("payment-lookup"));
    closeForm(desk, paymentForm);

    openFromMenu(desk, 16, billingForm);
    searchBanks(desk);
    closeForm(desk, billingForm);
}

}  // namespace akarix::month
