#include <algorithm>

#include "month/Hands.h"
#include "month/Steps.h"

namespace akarix::month {

namespace {

const QString kAccountForm = u"RepoDaichou_frm"_s;
const QString kSlipForm = u"Slip_frm"_s;
const QString kBalanceForm = u"TorZan_frm"_s;

/// A slip of the month whose customer has paid in it too, if there is one: an account with every kind of
/// line.
const DocumentNotes::value_type& TellingSlip(const TypedMonth& typed) {
    const auto hasPaid = [&typed](std::int32_t deal) {
        return std::any_of(typed.payments.begin(), typed.payments.end(),
                           [deal](const auto& payment) { return payment.second.deal == deal; });
    };
    const auto found = std::find_if(typed.slips.begin(), typed.slips.end(),
                                    [&](const auto& slip) { return hasPaid(slip.second.deal); });
    return found == typed.slips.end() ? *typed.slips.begin() : *found;
}

int RowOf(const FlexGrid& list, const QString& number) {
    for (int row = 1; row < list.Rows(); ++row)
        if (list.TextMatrix(row, 0) == number) return row;
    throw Failure(u"消費先台帳に伝票 %1 がありません。"_s.arg(number));
}

}  // namespace

void ShowAccount(Desk& desk) {
    const QString deal = QString::number(TellingSlip(desk.typed).second.deal);
    OpenFromMenu(desk, 8, kAccountForm);
    WalkTo(desk, u"excelCmd"_s, MonthTyped(desk.options, -3, {{Ebox(2), deal}}));
    TakeForm(desk, u"account"_s, kAccountForm);
}

void ExportAccount(Desk& desk) {
    SaveAs(desk, u"excelCmd"_s, desk.folder.path(u"account.xlsx"_s));
}

void OpenAccountSlip(Desk& desk) {
    const QString number = QString::number(TellingSlip(desk.typed).first);
    auto& list = desk.clerk.find<FlexGrid>(kAccountForm + u"/List"_s);
    desk.clerk.clickCell(list, RowOf(list, number), 0);
    const QString shown = desk.clerk.text(kSlipForm + u"/ebox(0)"_s);
    if (shown != number) throw Failure(u"伝票 %1 でなく %2 が開きました。"_s.arg(number, shown));
    desk.album.take(u"account-slip"_s, {&desk.clerk.form(kAccountForm), &desk.clerk.form(kSlipForm)});
    CloseForm(desk, kSlipForm);
    CloseForm(desk, kAccountForm);
}

// Shown and left: balances set here would stand against every later run.
void ShowBalances(Desk& desk) {
    OpenFromMenu(desk, 17, kBalanceForm);
    WalkTo(desk, u"Btn(2)"_s, MonthTyped(desk.options, 0, {{Ebox(2), u"1"_s}}));
    desk.clerk.enter();
    TakeForm(desk, u"opening-balances"_s, kBalanceForm);
    if (desk.clerk.find<FlexGrid>(kBalanceForm + u"/List"_s).Rows() < 2)
        throw Failure(u"得意先残設定に得意先がありません。"_s);
    CloseForm(desk, kBalanceForm);
}

}  // namespace akarix::month
