#include <algorithm>

#include "clerk/Clerk.h"
#include "month/Album.h"
#include "month/Desk.h"
#include "month/Failure.h"
#include "month/Hands.h"
#include "month/Options.h"
#include "month/Steps.h"
#include "month/WorkFolder.h"
#include "platform/forms/FlexGrid.h"
#include "platform/forms/Form.h"

namespace akarix::month {

namespace {

const QString accountForm = QStringLiteral("RepoDaichou_frm");
const QString slipForm = QStringLiteral("Slip_frm");
const QString balanceForm = QStringLiteral("TorZan_frm");

/// A slip of the month whose customer has paid in it too, if there is one: an account with every kind of
/// line.
const DocumentNotes::value_type& tellingSlip(const TypedMonth& typed) {
    const auto hasPaid = [&typed](std::int32_t deal) {
        return std::any_of(typed.payments.begin(), typed.payments.end(),
                           [deal](const auto& payment) { return payment.second.deal == deal; });
    };
    const auto found = std::find_if(typed.slips.begin(), typed.slips.end(),
                                    [&](const auto& slip) { return hasPaid(slip.second.deal); });
    return found == typed.slips.end() ? *typed.slips.begin() : *found;
}

int rowOf(const FlexGrid& list, const QString& number) {
    for (int row = 1; row < list.Rows(); ++row) {
        if (list.TextMatrix(row, 0) == number) return row;
    }
    throw Failure(QStringLiteral("消費先台帳に伝票 %1 がありません。").arg(number));
}

}  // namespace

void showAccount(Desk& desk) {
    const int from = desk.options.year * 12 + desk.options.month - 1 - 3;
    openFromMenu(desk, 8, accountForm);
    walkTo(desk, QStringLiteral("excelCmd"),
           {{QStringLiteral("ebox(0)"), QString::number(from / 12)},
            {QStringLiteral("ebox(1)"), QString::number(from % 12 + 1)},
            {QStringLiteral("ebox(2)"), QString::number(tellingSlip(desk.typed).second.deal)}});
    takeForm(desk, QStringLiteral("account"), accountForm);
}

void exportAccount(Desk& desk) {
    saveAs(desk, QStringLiteral("excelCmd"), desk.folder.path(QStringLiteral("account.xlsx")));
}

void openAccountSlip(Desk& desk) {
    const QString number = QString::number(tellingSlip(desk.typed).first);
    auto& list = desk.clerk.find<FlexGrid>(accountForm + QStringLiteral("/List"));
    desk.clerk.clickCell(list, rowOf(list, number), 0);
    const QString shown = desk.clerk.text(slipForm + QStringLiteral("/ebox(0)"));
    if (shown != number) throw Failure(QStringLiteral("伝票 %1 でなく %2 が開きました。").arg(number, shown));
    desk.album.take(QStringLiteral("account-slip"),
                    {&desk.clerk.form(accountForm), &desk.clerk.form(slipForm)});
    closeForm(desk, slipForm);
    closeForm(desk, accountForm);
}

// Shown and left: balances set here would stand against every later run.
void showBalances(Desk& desk) {
    openFromMenu(desk, 17, balanceForm);
    walkTo(desk, QStringLiteral("Btn(2)"),
           {{QStringLiteral("ebox(0)"), QString::number(desk.options.year)},
            {QStringLiteral("ebox(1)"), QString::number(desk.options.month)},
            {QStringLiteral("ebox(2)"), QStringLiteral("1")}});
    desk.clerk.enter();
    takeForm(desk, QStringLiteral("opening-balances"), balanceForm);
    if (desk.clerk.find<FlexGrid>(balanceForm + QStringLiteral("/List")).Rows() < 2) {
        throw Failure(QStringLiteral("得意先残設定に得意先がありません。"));
    }
    closeForm(desk, balanceForm);
}

}  // namespace akarix::month
