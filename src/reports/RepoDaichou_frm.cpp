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
#include "platform/runtime/CDate.h"
#include "platform/runtime/Clock.h"
#include "platform/runtime/DatePart.h"
#include "platform/runtime/IsDate.h"
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

void openReadings(const QString& month, std::int32_t customer) {
    const QString day = month + QStringLiteral("/01");
    if (!IsDate(day)) return;
    const Date date = CDate(day);
    auto nendo = static_cast<std::int16_t>(Year(date));
    auto getudo = static_cast<std::int16_t>(Month(date));
    auto& sheet = Form::Instance<SlipG_frm>();
    sheet.Show();
    sheet.fromexe(nendo, getudo, customer);
}

template <class Screen>
void openDocument(const QString& number) {
    std::int32_t dno = ToLong(number);
    if (dno < 1) return;
    auto& screen = Form::Instance<Screen>();
    screen.Show();
    screen.fromexe(dno);
}

}  // namespace

RepoDaichou_frm::RepoDaichou_frm()
    : EntryForm(QStringLiteral("RepoDaichou_frm"), QStringLiteral("消費先台帳")) {
    layOut();
    const PressEnter press = wireKeys(ebox, [this](int index) { return enter(index); });
    wireLookup(F6(0), QStringLiteral("Deal"), {}, ebox(kCustomer), press, kCustomer);
    on(List_, &FlexGrid::Click, [this] { openLine(); });
    on(excelCmd_, &CommandButton::Click, [this] { exportGrid(); });
    on(siteiCmd_, &CommandButton::Click, [this] { purgeCustomer(); });
    on(Command_, &CommandButton::Click, [this] { purgeAll(); });
}

void RepoDaichou_frm::layOut() {
    List_ = &Named(new FlexGrid(this), QStringLiteral("List"));
    DefineAccountColumns(*List_);
    constexpr int kGridHeight = 440;
    ReserveRoom(*List_, kGridHeight);

    auto* body = new QVBoxLayout(this);
    body->addLayout(layOutHead());
    auto* aboveList = new QHBoxLayout;
    aboveList->addWidget(new Label(QStringLiteral("伝票Noの項目はクリックすると明細が表示されます")), 1);
    excelCmd_ = &Named(new CommandButton(QStringLiteral("Excel")), QStringLiteral("excelCmd"));
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
    fields.row(QStringLiteral("年月"))
        .text(addBox(ebox, kYear, ImeMode::Off), 4)
        .note(QStringLiteral("年"))
        .text(addBox(ebox, kMonth, ImeMode::Off), 2)
        .note(QStringLiteral("月以降"));
    sNamae_ = &Named(new Label({}, this), QStringLiteral("sNamae"));
    fields.row(QStringLiteral("得意先"))
        .text(addBox(ebox, kCustomer, ImeMode::Off), kLongKeyBytes)
        .lookup(F6.add(0, new Image))
        .name(*sNamae_, kNameBytes);
    fields.nextColumn();
    sNGaku_ = &Named(new Label({}, this), QStringLiteral("sNGaku"));
    fields.row(QStringLiteral("未入金")).name(*sNGaku_, kMoneyBytes);
    return fields.layout();
}

/// What deletes stands in a frame of its own at the foot of the screen, behind everything else in the walk.
QWidget* RepoDaichou_frm::layOutPurge() {
    siteiCmd_ = &Named(new CommandButton(QStringLiteral("指定得意先削除")), QStringLiteral("siteiCmd"));
    Command_ = &Named(new CommandButton(QStringLiteral("全削除")), QStringLiteral("Command"));
    FieldLayout fields(*this);
    fields.row({})
        .text(addBox(ebox, kPurgeYear, ImeMode::Off), 4)
        .note(QStringLiteral("年"))
        .text(addBox(ebox, kPurgeMonth, ImeMode::Off), 2)
        .widget(new Label(QStringLiteral("月度の全得意先の情報を全て削除します。")))
        .button(*Command_)
        .button(*siteiCmd_);
    auto* frame = new Frame(QStringLiteral("削除"), this);
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
            openReadings(row.date, shownCustomer_);
            break;
        case CustomerAccount::kSlip:
            openDocument<Slip_frm>(row.number);
            break;
        case CustomerAccount::kPayment:
            openDocument<SlipN2_frm>(row.number);
            break;
        default:
            break;
    }
}

void RepoDaichou_frm::exportGrid() {
    GridToExcel(QStringLiteral("消費先台帳"),
                ebox(kCustomer).Text() + QStringLiteral(" : ") + sNamae_->Caption(),
                ebox(kYear).Text() + u'/' + ebox(kMonth).Text() + QStringLiteral("以降"), *List_);
}

// ---- a month's end

void RepoDaichou_frm::purgeAll() {
    purge(QStringLiteral("この対象年月のデータを削除しますか？"), {});
}

void RepoDaichou_frm::purgeCustomer() {
    for (const int field : {kPurgeYear, kPurgeMonth, kCustomer}) {
        if (NumVal(ebox(field).Text()) == 0) return;
    }
    const QString customer = number(kCustomer);
    purge(QStringLiteral("この対象年月 ") + customer + QStringLiteral(" のデータを削除しますか？"), customer);
}

void RepoDaichou_frm::purge(const QString& question, const QString& customer) {
    if (AskConfirmRev(question, QStringLiteral("いいえ"), QStringLiteral("削除"))) return;
    PurgeMonth(number(kPurgeYear), number(kPurgeMonth), customer);
    ebox(kPurgeYear).SetText({});
    ebox(kPurgeMonth).SetText({});
    showAccount();
}

}  // namespace akarix
