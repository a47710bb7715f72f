#include "reports/RepoDaichou_frm.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "dialogs/AskConfirm.h"
#include "entry/SlipG_frm.h"
#include "entry/SlipN2_frm.h"
#include "entry/Slip_frm.h"
#include "output/EX.h"
#include "platform/forms/Choice.h"
#include "platform/forms/FieldLayout.h"
#include "platform/forms/GridHead.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Literals.h"
#include "reports/AccountGrid.h"
#include "reports/MonthPurge.h"
#include "store/Lookup.h"
#include "toolkit/FieldBytes.h"
#include "toolkit/FieldWalk.h"
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
    layOut();
    const PressEnter press = wireKeys(ebox, [this](int index) { return enter(index); });
    wireLookup(F6(0), u"Deal"_s, {}, ebox(kCustomer), press, kCustomer);
    on(
        List_, &FlexGrid::Click, [this] { openLine(); });
    on(
        excelCmd_, &CommandButton::Click, [this] { exportGrid(); });
    on(
        siteiCmd_, &CommandButton::Click, [this] { purgeCustomer(); });
    on(Command_, &CommandButton::Click, [this] { purgeAll(); });
}

void RepoDaichou_frm::layOut() {
    List_ = &Named(new FlexGrid(this), u"List"_s);
    DefineAccountColumns(*List_);
    constexpr int kGridHeight = 440;
    ReserveRoom(*List_, kGridHeight);

    auto* body = new QVBoxLayout(this);
    body->addLayout(layOutHead());
    auto* aboveList = new QHBoxLayout;
    aboveList->addWidget(new Label(u"伝票Noの項目はクリックすると明細が表示されます"_s), 1);
    excelCmd_ = &Named(new CommandButton(u"Excel"_s), u"excelCmd"_s);
    JoinWalk(*this, *excelCmd_);
    aboveList->addWidget(excelCmd_);
    body->addLayout(aboveList);
    body->addWidget(List_, 1);
    constexpr int kApart = 10;
    body->addSpacing(kApart);
    body->addWidget(layOutPurge());
}

QLayout* RepoDaichou_frm::layOutHead() {
    constexpr int kNameBytes = 40;
    constexpr int kMoneyBytes = 14;
    FieldLayout fields(*this);
    fields.row(u"年月"_s)
        .text(addBox(ebox, kYear, ImeMode::Off), 4)
        .note(u"年"_s)
        .text(addBox(ebox, kMonth, ImeMode::Off), 2)
        .note(u"月以降"_s);
    sNamae_ = &Named(new Label({}, this), u"sNamae"_s);
    fields.row(u"得意先"_s)
        .text(addBox(ebox, kCustomer, ImeMode::Off), kLongKeyBytes)
        .lookup(F6.add(0, new Image))
        .name(*sNamae_, kNameBytes);
    fields.nextColumn();
    sNGaku_ = &Named(new Label({}, this), u"sNGaku"_s);
    fields.row(u"未入金"_s).name(*sNGaku_, kMoneyBytes);
    return fields.layout();
}

/// What deletes stands in a frame of its own at the foot of the screen, behind everything else in the walk.
QWidget* RepoDaichou_frm::layOutPurge() {
    siteiCmd_ = &Named(new CommandButton(u"指定得意先削除"_s), u"siteiCmd"_s);
    Command_ = &Named(new CommandButton(u"全削除"_s), u"Command"_s);
    FieldLayout fields(*this);
    fields.row({})
        .text(addBox(ebox, kPurgeYear, ImeMode::Off), 4)
        .note(u"年"_s)
        .text(addBox(ebox, kPurgeMonth, ImeMode::Off), 2)
        .widget(new Label(u"月度の全得意先の情報を全て削除します。"_s))
        .button(*Command_)
        .button(*siteiCmd_);
    auto* frame = new Frame(u"削除"_s, this);
    frame->setLayout(fields.layout());
    return frame;
}

void RepoDaichou_frm::init() {
    ClearControls(*this);
    sNamae_->SetCaption({});
    List_->SetRows(1);
    shownCustomer_ = 0;
    ebox(kYear).SetText(NumStr(Year(Today())));
    ebox(kMonth).SetText(NumStr(Month(Today())));
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
    sNamae_->SetCaption(GetDealName(NumVal(ebox(kCustomer).Text())));
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
    GridToExcel(u"消費先台帳"_s, ebox(kCustomer).Text() + u" : "_s + sNamae_->Caption(),
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
    showAccount();
}

}  // namespace akarix
