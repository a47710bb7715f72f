#include "clerk/Clerk.h"
#include "month/Album.h"
#include "month/Desk.h"
#include "month/Hands.h"
#include "month/Steps.h"
#include "platform/forms/FlexGrid.h"
#include "platform/forms/Form.h"
#include "platform/runtime/Literals.h"
#include "sample/Names.h"

namespace akarix::month {

namespace {

const QString kSaveButton = u"Btn(2)"_s;

QString Ebox(int index) {
    return u"ebox(%1)"_s.arg(index);
}

/// A price is worked out on the calculator that the tariff screen offers.
void Calculate(Desk& desk) {
    const QString form = u"電卓"_s;
    desk.clerk.click(u"Command1"_s);
    desk.clerk.bringToFront(form);
    desk.clerk.fill(u"1500+12.5*480"_s);
    TakeForm(desk, u"calculator"_s, form);
    CloseForm(desk, form);
}

/// A customer is sought by a part of his reading and picked by a click.
void LookUpCustomer(Desk& desk) {
    desk.clerk.expect(u"HelpDeal_frm"_s, [&desk](QWidget& lookup) {
        Clerk& clerk = desk.clerk;
        clerk.fill(u"ﾔﾏ"_s);
        clerk.fill({});
        clerk.fill({});
        clerk.enter();
        desk.album.take(u"customer-lookup"_s, {&lookup});
        auto& list = clerk.find<FlexGrid>(u"List"_s);
        if (list.Rows() > 1)
            clerk.clickCell(list, 1, 2);
        else
            clerk.closeBox(lookup);
    });
    desk.clerk.click(u"F6(0)"_s);
}

/// An item is sought by a part of its reading and picked by a click.
void LookUpItem(Desk& desk) {
    desk.clerk.expect(u"Help_frm"_s, [&desk](QWidget& lookup) {
        desk.clerk.fill(u"ｶﾞｽ"_s);
        desk.clerk.fill({});
        desk.clerk.enter();
        desk.album.take(u"goods-lookup"_s, {&lookup});
        desk.clerk.clickCell(desk.clerk.find<FlexGrid>(u"List"_s), 0, 1);
    });
    desk.clerk.click(u"F6(0)"_s);
}

/// A deletion is asked for and thought better of.
void AskToDelete(Desk& desk) {
    desk.clerk.expect(u"Confirm_frm"_s, [&desk](QWidget& question) {
        desk.album.take(u"confirmation"_s, {&question});
        desk.clerk.down();
        desk.clerk.enter();
        desk.clerk.enter();
    });
    desk.clerk.click(u"Btn(1)"_s);
}

}  // namespace

void KeepTariff(Desk& desk) {
    const QString form = u"GTanka_frm"_s;
    OpenFromMenu(desk, 3, form);
    desk.clerk.fill(u"1"_s);
    desk.clerk.clickCell(desk.clerk.find<FlexGrid>(u"ListK"_s), 2, 5);
    TakeForm(desk, u"tariff"_s, form);
    Calculate(desk);

    desk.clerk.bringToFront(form);
    desk.clerk.click(u"Command(3)"_s);
    desk.newTariff = desk.clerk.text(Ebox(0));
    WalkTo(desk, u"Command(0)"_s,
           {{Ebox(1), u"0"_s}, {Ebox(2), u"999"_s}, {Ebox(3), u"1500"_s}, {Ebox(4), u"480.5"_s}});
    desk.clerk.enter();
    desk.clerk.click(u"Command(2)"_s);
    CloseForm(desk, form);
}

void KeepRoute(Desk& desk) {
    const QString form = u"MstRte_frm"_s;
    OpenFromMenu(desk, 12, form);
    WalkTo(desk, kSaveButton, {{Ebox(1), u"ﾐﾅﾐﾏﾁ"_s}, {Ebox(2), u"南町地区"_s}, {Ebox(3), u"26"_s}});
    TakeForm(desk, u"route"_s, form);
    desk.clerk.enter();
    CloseForm(desk, form);
}

void KeepCustomer(Desk& desk) {
    const QString form = u"MstDeal_frm"_s;
    OpenFromMenu(desk, 13, form);
    LookUpCustomer(desk);
    TakeForm(desk, u"customer"_s, form);
    AskToDelete(desk);
    desk.clerk.click(u"Btn(0)"_s);

    desk.newCustomer = desk.clerk.text(Ebox(0)).toInt();
    const sample::Town& town = sample::TownOf(0, 0);
    WalkTo(desk, kSaveButton,
           {{Ebox(22), QString::number(sample::kRouteCount + 1)},
            {Ebox(1), u"ﾐﾅﾐ ﾊﾅｺ"_s},
            {Ebox(2), u"南　花子"_s},
            {Ebox(4), QString::fromUtf16(town.zip)},
            {Ebox(7), u"0000-12-3456"_s},
            {Ebox(10), u"1"_s},
            {Ebox(12), u"7"_s},
            {Ebox(15), desk.newTariff}});
    TakeForm(desk, u"new-customer"_s, form);
    desk.clerk.enter();
    CloseForm(desk, form);
}

void KeepGoods(Desk& desk) {
    const QString form = u"MstHin_frm"_s;
    OpenFromMenu(desk, 4, form);
    LookUpItem(desk);
    TakeForm(desk, u"goods"_s, form);
    desk.clerk.click(u"Btn(0)"_s);

    desk.newItem = desk.clerk.text(Ebox(0)).toInt();
    desk.newItemPrice = 32800;
    WalkTo(desk, kSaveButton,
           {{Ebox(1), u"ｶﾞｽｽｲﾊﾝｷ"_s},
            {Ebox(2), u"ガス炊飯器 5合炊き"_s},
            {Ebox(3), QString::number(desk.newItemPrice)}});
    TakeForm(desk, u"new-goods"_s, form);
    desk.clerk.enter();
    CloseForm(desk, form);
}

}  // namespace akarix::month
