#include "clerk/Clerk.h"
#include "month/Album.h"
#include "month/Desk.h"
#include "month/Hands.h"
#include "month/Steps.h"
#include "platform/forms/FlexGrid.h"
#include "platform/forms/Form.h"
#include "sample/Names.h"

namespace akarix::month {

namespace {

const QString saveButton = QStringLiteral("Btn(2)");

QString ebox(int index) {
    return QStringLiteral("ebox(%1)").arg(index);
}

/// A price is worked out on the calculator that the tariff screen offers.
void calculate(Desk& desk) {
    const QString form = QStringLiteral("電卓");
    desk.clerk.click(QStringLiteral("Command1"));
    desk.clerk.bringToFront(form);
    desk.clerk.fill(QStringLiteral("1500+12.5*480"));
    takeForm(desk, QStringLiteral("calculator"), form);
    closeForm(desk, form);
}

/// A customer is sought by a part of his reading and picked by a click.
void lookUpCustomer(Desk& desk) {
    desk.clerk.expect(QStringLiteral("HelpDeal_frm"), [&desk](QWidget& lookup) {
        Clerk& clerk = desk.clerk;
        clerk.fill(QStringLiteral("ﾔﾏ"));
        clerk.fill({});
        clerk.fill({});
        clerk.enter();
        desk.album.take(QStringLiteral("customer-lookup"), {&lookup});
        auto& list = clerk.find<FlexGrid>(QStringLiteral("List"));
        if (list.Rows() > 1) {
            clerk.clickCell(list, 1, 2);
        } else {
            clerk.closeBox(lookup);
        }
    });
    desk.clerk.click(QStringLiteral("F6(0)"));
}

/// An item is sought by a part of its reading and picked by a click.
void lookUpItem(Desk& desk) {
    desk.clerk.expect(QStringLiteral("Help_frm"), [&desk](QWidget& lookup) {
        desk.clerk.fill(QStringLiteral("ｶﾞｽ"));
        desk.clerk.fill({});
        desk.clerk.enter();
        desk.album.take(QStringLiteral("goods-lookup"), {&lookup});
        desk.clerk.clickCell(desk.clerk.find<FlexGrid>(QStringLiteral("List")), 0, 1);
    });
    desk.clerk.click(QStringLiteral("F6(0)"));
}

/// A deletion is asked for and thought better of.
void askToDelete(Desk& desk) {
    desk.clerk.expect(QStringLiteral("Confirm_frm"), [&desk](QWidget& question) {
        desk.album.take(QStringLiteral("confirmation"), {&question});
        desk.clerk.down();
        desk.clerk.enter();
        desk.clerk.enter();
    });
    desk.clerk.click(QStringLiteral("Btn(1)"));
}

}  // namespace

void keepTariff(Desk& desk) {
    const QString form = QStringLiteral("GTanka_frm");
    openFromMenu(desk, 3, form);
    desk.clerk.fill(QStringLiteral("1"));
    desk.clerk.clickCell(desk.clerk.find<FlexGrid>(QStringLiteral("ListK")), 2, 5);
    takeForm(desk, QStringLiteral("tariff"), form);
    calculate(desk);

    desk.clerk.bringToFront(form);
    desk.clerk.click(QStringLiteral("Command(3)"));
    desk.newTariff = desk.clerk.text(ebox(0));
    walkTo(desk, QStringLiteral("Command(0)"),
           {{ebox(1), QStringLiteral("0")},
            {ebox(2), QStringLiteral("999")},
            {ebox(3), QStringLiteral("1500")},
            {ebox(4), QStringLiteral("480.5")}});
    desk.clerk.enter();
    desk.clerk.click(QStringLiteral("Command(2)"));
    closeForm(desk, form);
}

void keepRoute(Desk& desk) {
    const QString form = QStringLiteral("MstRte_frm");
    openFromMenu(desk, 12, form);
    walkTo(desk, saveButton,
           {{ebox(1), QStringLiteral("ﾐﾅﾐﾏﾁ")},
            {ebox(2), QStringLiteral("南町地区")},
            {ebox(3), QStringLiteral("26")}});
    takeForm(desk, QStringLiteral("route"), form);
    desk.clerk.enter();
    closeForm(desk, form);
}

void keepCustomer(Desk& desk) {
    const QString form = QStringLiteral("MstDeal_frm");
    openFromMenu(desk, 13, form);
    lookUpCustomer(desk);
    takeForm(desk, QStringLiteral("customer"), form);
    askToDelete(desk);
    desk.clerk.click(QStringLiteral("Btn(0)"));

    desk.newCustomer = desk.clerk.text(ebox(0)).toInt();
    const sample::Town& town = sample::townOf(0, 0);
    walkTo(desk, saveButton,
           {{ebox(22), QString::number(sample::routeCount + 1)},
            {ebox(1), QStringLiteral("ﾐﾅﾐ ﾊﾅｺ")},
            {ebox(2), QStringLiteral("南　花子")},
            {ebox(4), QString::fromUtf16(town.zip)},
            {ebox(7), QStringLiteral("0000-12-3456")},
            {ebox(10), QStringLiteral("1")},
            {ebox(12), QStringLiteral("7")},
            {ebox(15), desk.newTariff}});
    takeForm(desk, QStringLiteral("new-customer"), form);
    desk.clerk.enter();
    closeForm(desk, form);
}

void keepGoods(Desk& desk) {
    const QString form = QStringLiteral("MstHin_frm");
    openFromMenu(desk, 4, form);
    lookUpItem(desk);
    takeForm(desk, QStringLiteral("goods"), form);
    desk.clerk.click(QStringLiteral("Btn(0)"));

    desk.newItem = desk.clerk.text(ebox(0)).toInt();
    desk.newItemPrice = 32800;
    walkTo(desk, saveButton,
           {{ebox(1), QStringLiteral("ｶﾞｽｽｲﾊﾝｷ")},
            {ebox(2), QStringLiteral("ガス炊飯器 5合炊き")},
            {ebox(3), QString::number(desk.newItemPrice)}});
    takeForm(desk, QStringLiteral("new-goods"), form);
    desk.clerk.enter();
    closeForm(desk, form);
}

}  // namespace akarix::month
