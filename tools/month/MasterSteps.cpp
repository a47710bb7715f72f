#include "month/Hands.h"
#include "month/Steps.h"
#include "sample/Names.h"
#include "sample/SampleMasters.h"

namespace akarix::month {

namespace {

const QString kSaveButton = u"Btn(2)"_s;

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
    KeepForm(desk, 12, u"MstRte_frm"_s, kSaveButton,
             {{Ebox(1), u"ﾐﾅﾐﾏﾁ"_s}, {Ebox(2), u"南町地区"_s}, {Ebox(3), u"26"_s}}, u"route"_s);
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
    FinishForm(desk, form, kSaveButton,
               {{Ebox(22), QString::number(sample::kRouteCount + 1)},
                {Ebox(1), u"ﾐﾅﾐ ﾊﾅｺ"_s},
                {Ebox(2), u"南　花子"_s},
                {Ebox(4), QString::fromUtf16(town.zip)},
                {Ebox(7), u"0000-12-3456"_s},
                {Ebox(10), u"1"_s},
                {Ebox(12), u"7"_s},
                {Ebox(15), desk.newTariff}},
               u"new-customer"_s);
}

void KeepGoods(Desk& desk) {
    const QString form = u"MstHin_frm"_s;
    OpenFromMenu(desk, 4, form);
    LookUpItem(desk);
    TakeForm(desk, u"goods"_s, form);
    desk.clerk.click(u"Btn(0)"_s);

    desk.newItem = desk.clerk.text(Ebox(0)).toInt();
    desk.newItemPrice = 32800;
    FinishForm(desk, form, kSaveButton,
               {{Ebox(1), u"ｶﾞｽｽｲﾊﾝｷ"_s},
                {Ebox(2), u"ガス炊飯器 5合炊き"_s},
                {Ebox(3), QString::number(desk.newItemPrice)}},
               u"new-goods"_s);
}

void KeepSettings(Desk& desk) {
    desk.typed.alarmFee = 305;
    desk.typed.acuFee = 1220;
    KeepForm(desk, 18, u"etc_frm"_s, u"Btn(1)"_s, {}, u"settings"_s);
    KeepForm(desk, 9, u"Keihoki_frm"_s, u"Btn"_s,
             {{Ebox(0), QString::number(desk.typed.alarmFee)}, {Ebox(1), QString::number(desk.typed.acuFee)}},
             u"lease-fees"_s);
}

// A consignor is looked up, walked through and saved as it stands.
void KeepConsignors(Desk& desk) {
    KeepForm(desk, 14, u"MstBnk_frm"_s, kSaveButton, {{Ebox(0), QString::number(sample::BankAt(0).code)}},
             u"bank-consignor"_s);
    KeepForm(desk, 15, u"MstYubin_frm"_s, kSaveButton, {{Ebox(0), QString::number(sample::kPostOffice)}},
             u"post-consignor"_s);
}

}  // namespace akarix::month
