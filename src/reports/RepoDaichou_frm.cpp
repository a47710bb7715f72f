#include "reports/RepoDaichou_frm.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "dialogs/AskConfirm.h"
#include "entry/SlipG_frm.h"
#include "entry/SlipN2_frm.h"
#include "entry/Slip_frm.h"
#include "output/EX.h"
#include "platform/forms/Choice.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Conversion.h"
#include "reports/AccountGrid.h"
#include "reports/CustomerAccount.h"
#include "reports/MonthPurge.h"
#include "toolkit/GridColumns.h"
#include "values/NumStr.h"
#include "values/NumVal.h"

namespace akarix {

namespace {

enum Box { kYear, kMonth, kCustomer, kPurgeYear, kPurgeMonth };

void OpenReadings(const QString& month, std::int32_t customer) {
    const QString day = month + u"/01"_s;
    if (!IsDate(day)) return;
    const Date date = CDate(day);
    auto nendo = static_cast<std::int16_t>(Year(date));
    auto getudo = static_cast<std::int16_t>(Month(date));
    auto& sheet = Form::Instance<SlipG_frm>();
    sheet.Show();
    sheet.fromexe(nendo, getudo, customer);
}

template <class Screen>
void OpenDocument(const QString& number) {
    std::int32_t dno = ToLong(number);
    if (dno < 1) return;
    auto& screen = Form::Instance<Screen>();
    screen.Show();
    screen.fromexe(dno);
}

}  // namespace

RepoDaichou_frm::RepoDaichou_frm() : EntryForm(u"RepoDaichou_frm"_s, u"消費先台帳"_s) {
    List_ = &Named(new FlexGrid(this), u"List"_s);
    DefineAccountColumns(*List_);
    constexpr int kGridHeight = 440;
    ReserveRoom(*List_, kGridHeight);

    auto* body = new QVBoxLayout(this);
    body->addLayout(layOutHead());
    auto* aboveList = new QHBoxLayout;
    aboveList->addWidget(new Label(u"伝票Noの項目はクリックすると明細が表示されます"_s), 1);
    aboveList->addWidget(&Named(newButton(u"Excel"_s, [this] { exportGrid(); }), u"excelCmd"_s));
    body->addLayout(aboveList);
    body->addWidget(List_, 1);
    constexpr int kApart = 10;
    body->addSpacing(kApart);
    body->addWidget(layOutPurge());
    on(List_, &FlexGrid::Click, [this] { openLine(); });
}

QLayout* RepoDaichou_frm::layOutHead() {
    constexpr int kNameBytes = 40;
    constexpr int kMoneyBytes = 14;
    FieldLayout fields(*this);
    addMonth(fields.row(u"年月"_s), kYear, kMonth, u"月以降"_s);
    addCode(fields.row(u"得意先"_s), kCustomer, {0, u"Deal"_s, u"sNamae"_s, kNameBytes});
    fields.nextColumn();
    fields.row(u"未入金"_s).name(addName(u"sNGaku"_s), kMoneyBytes);
    return fields.layout();
}

/// What deletes stands in a frame of its own at the foot of the screen, behind everything else in the walk.
QWidget* RepoDaichou_frm::layOutPurge() {
    FieldLayout fields(*this);
    fields.row({})
        .text(addBox(kPurgeYear), 4)
        .note(u"年"_s)
        .text(addBox(kPurgeMonth), 2)
        .widget(new Label(u"月度の全得意先の情報を全て削除します。"_s))
        .button(Named(newButton(
                          u"全削除"_s, [this] { purgeAll(); }, Removes),
                      u"Command"_s))
        .button(Named(newButton(
                          u"指定得意先削除"_s, [this] { purgeCustomer(); }, Removes),
                      u"siteiCmd"_s));
    auto* frame = new Frame(u"削除"_s, this);
    frame->setLayout(fields.layout());
    return frame;
}

void RepoDaichou_frm::init() {
    emptyFields();
    List_->SetRows(1);
    shownCustomer_ = 0;
    putMonth(kYear, kMonth, Today());
    FocusSelect(ebox(kYear));
}

bool RepoDaichou_frm::enter(int index) {
    if (index == kCustomer) showAccount();
    return true;
}

QString RepoDaichou_frm::number(int field) const {
    return KeepNumeric(ebox(field).Text());
}

// ---- the account

void RepoDaichou_frm::showAccount() {
    List_->SetRows(1);
    shownCustomer_ = 0;
    const CustomerAccount account(number(kYear), number(kMonth), number(kCustomer));
    account.gather();
    ShowAccount(account, *List_);
    shownCustomer_ = account.customer();
}

void RepoDaichou_frm::openLine() {
    if (List_->MouseCol() != 0 || List_->MouseRow() < 1) return;
    const AccountRow row = ReadAccountRow(*List_, List_->MouseRow());
    switch (row.kind) {
        case CustomerAccount::kGas:
            OpenReadings(row.date, shownCustomer_);
            break;
        case CustomerAccount::kSlip:
            OpenDocument<Slip_frm>(row.number);
            break;
        case CustomerAccount::kPayment:
            OpenDocument<SlipN2_frm>(row.number);
            break;
        default:
            break;
    }
}

void RepoDaichou_frm::exportGrid() {
    GridToExcel(u"消費先台帳"_s, ebox(kCustomer).Text() + u" : "_s + nameOf(kCustomer),
                ebox(kYear).Text() + u'/' + ebox(kMonth).Text() + u"以降"_s, *List_);
}

// ---- a month's end

void RepoDaichou_frm::purgeAll() {
    purge(u"この対象年月のデータを削除しますか？"_s, {});
}

void RepoDaichou_frm::purgeCustomer() {
    for (const int field : {kPurgeYear, kPurgeMonth, kCustomer})
        if (NumVal(ebox(field).Text()) == 0) return;
    const QString customer = number(kCustomer);
    purge(u"この対象年月 "_s + customer + u" のデータを削除しますか？"_s, customer);
}

void RepoDaichou_frm::purge(const QString& question, const QString& customer) {
    if (AskConfirmRev(question, u"いいえ"_s, u"削除"_s)) return;
    PurgeMonth(number(kPurgeYear), number(kPurgeMonth), customer);
    ebox(kPurgeYear).SetText({});
    ebox(kPurgeMonth).SetText({});
    showName(kCustomer);
    showAccount();
}

}  // namespace akarix
