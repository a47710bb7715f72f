#include "month/Hands.h"
#include "month/Steps.h"

namespace akarix::month {

namespace {

const QString kSlipForm = u"Slip_frm"_s;
const QString kPaymentForm = u"SlipN2_frm"_s;
const QString kBillingForm = u"Seikyu_frm"_s;

/// The lookup that a picture opens is kept and left without a pick.
void LookAt(Desk& desk, const QString& picture, const QString& lookup, const QString& name) {
    desk.clerk.expect(lookup, [&desk, name](QWidget& shown) {
        desk.album.take(name, {&shown});
        desk.clerk.closeBox(shown);
    });
    desk.clerk.click(picture);
}

/// A search among the banks is an error: they have a list alone.
void SearchBanks(Desk& desk) {
    desk.clerk.expect(u"Help_frm"_s, [&desk](QWidget& shown) {
        desk.album.take(u"bank-lookup"_s, {&shown});
        ExpectPictured(desk, u"MsgBox"_s, u"error"_s, Qt::Key_Return);
        desk.clerk.click(u"Btn(0)"_s);
        desk.clerk.closeBox(shown);
    });
    desk.clerk.click(u"F6(0)"_s);
}

}  // namespace

void ShowLookups(Desk& desk) {
    OpenFromMenu(desk, 0, kSlipForm);
    LookAt(desk, u"F6(0)"_s, u"HelpSlip_frm"_s, u"slip-lookup"_s);
    CloseForm(desk, kSlipForm);

    OpenFromMenu(desk, 2, kPaymentForm);
    WalkTo(desk, Ebox(2), {{Ebox(1), QString::number(desk.typed.payments.begin()->second.deal)}});
    LookAt(desk, u"F6(0)"_s, u"HelpN_frm"_s, u"payment-lookup"_s);
    CloseForm(desk, kPaymentForm);

    OpenFromMenu(desk, 16, kBillingForm);
    SearchBanks(desk);
    CloseForm(desk, kBillingForm);
}

}  // namespace akarix::month
