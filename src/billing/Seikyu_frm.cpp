#include "billing/Seikyu_frm.h"

#include <QGridLayout>
#include <QVBoxLayout>
#include <array>

#include "billing/Tto.h"
#include "dialogs/ShowAlert.h"
#include "platform/forms/LongRun.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/RuntimeError.h"
#include "values/Dates.h"
#include "values/NumVal.h"

namespace akarix {

namespace {

enum Field { kYear = 0, kMonth = 1, kCreation = 2, kBank = 5 };
/// A button of the board of actions.
struct Action {
    int index;
    int row;
    int column;
    const char16_t* caption;
    void (DebitButtons::*press)();  ///< none: the billing run
};

constexpr std::array<Action, 7> kActions{{
    {0, 0, 0, u"請求データの作成", nullptr},
    {1, 1, 0, u"銀行ディスクの作成", &DebitButtons::writeBank},
    {2, 1, 1, u"郵便局ディスクの作成", &DebitButtons::writePost},
    {3, 2, 0, u"銀行ディスクの読込", &DebitButtons::readBank},
    {4, 2, 1, u"郵便局ディスクの読込", &DebitButtons::readPost},
    {5, 3, 0, u"銀行口座振替明細書", &DebitButtons::printBank},
    {6, 3, 1, u"郵便局口座振替明細書", &DebitButtons::printPost},
}};

}  // namespace

Seikyu_frm::Seikyu_frm() : EntryForm(u"Seikyu_frm"_s, u"請求処理"_s) {
    Btn = ControlArray<CommandButton>(u"Command"_s);
    constexpr int kDateBytes = 10;
    constexpr int kWeekdayBytes = 4;
    const auto label = [this](const char16_t* name, const char16_t* caption = u"") {
        return &Named(new Label(QString::fromUtf16(caption), this), QString::fromUtf16(name));
    };
    lYobi1_ = label(u"lYobi1");
    sSyukeibi_ = label(u"sSyukeibi");
    Label* lyobi2 = label(u"lyobi2");
    Label* saihiHead = label(u"Label(6)", u"再振替日");
    Label* saihiHint = label(u"Label1", u"Enterで決定");

    FieldLayout fields(*this);
    addMonth(fields.row(u"対象"_s), kYear, kMonth, u"月分"_s);
    on(&ebox(kMonth), &TextBox::LostFocus, [this] { showClosingDate(); });
    fields.row(u"集計日"_s).name(*sSyukeibi_, kDateBytes);
    fields.row(u"作成日"_s).text(addBox(kCreation), kDateBytes).name(*lYobi1_, kWeekdayBytes);
    fields.row(u"銀行ｺｰﾄﾞ"_s).text(addBox(kBank), kIntegerBytes).lookup(addLookup(0, u"Bnk"_s, kBank));
    TextBox& eSaihi = Named(new TextBox, u"eSaihi"_s);
    eSaihi.SetIMEMode(ImeMode::Off);
    fields.row({}).widget(saihiHead).text(eSaihi, kDateBytes).name(*lyobi2, kWeekdayBytes).widget(saihiHint);

    auto* actions = new QGridLayout;
    actions->setHorizontalSpacing(12);
    actions->setVerticalSpacing(8);
    constexpr int kButtonWidth = 200;
    constexpr int kButtonHeight = 36;
    for (const Action& action : kActions) {
        const auto press = [this, debit = action.press] {
            if (debit == nullptr) return runBilling();
            (*disks_.*debit)();
        };
        CommandButton& button = Btn.add(action.index, newButton(QString::fromUtf16(action.caption), press));
        button.setMinimumSize(kButtonWidth, kButtonHeight);
        actions->addWidget(&button, action.row, action.column, 1, action.press == nullptr ? 2 : 1);
    }
    Label* progress = label(u"Progress");
    disks_.emplace(DebitButtons::Controls{&ebox(kYear), &ebox(kMonth), &ebox(kCreation), &ebox(kBank),
                                          saihiHead, &eSaihi, lyobi2, saihiHint, progress});
    disks_->reset();
    on(&eSaihi, &TextBox::KeyDown, [this, &eSaihi](KeyEvent& event) { enterRetransfer(eSaihi, event); });

    auto* body = new QVBoxLayout(this);
    body->setSpacing(12);
    body->addLayout(fields.layout());
    body->addLayout(actions);
    body->addWidget(progress);
}

void Seikyu_frm::init() {
    putMonth(kYear, kMonth, Today());
    ebox(kCreation).SetText(DateText(Today()));
    ebox(kBank).SetText({});
    disks_->reset();
    showWeekday();
    showClosingDate();
    FocusSelect(ebox(kYear));
}

bool Seikyu_frm::enter(int index) {
    if (index == kCreation) {
        // Text that is no date stays as typed; the run then tells it.
        const Date date = creation();
        if (IsDateSet(date)) ebox(kCreation).SetText(DateText(date));
        showWeekday();
    }
    return true;
}

Date Seikyu_frm::creation() const {
    return ParseDate(ebox(kCreation).Text());
}

void Seikyu_frm::showWeekday() {
    const Date date = creation();
    lYobi1_->SetCaption(IsDateSet(date) ? YobiName(date) : QString());
}

void Seikyu_frm::showClosingDate() {
    sSyukeibi_->SetCaption(
        ReadClosingDate({CInt(NumVal(ebox(kYear).Text())), CInt(NumVal(ebox(kMonth).Text()))}));
}

void Seikyu_frm::enterRetransfer(TextBox& eSaihi, KeyEvent& event) {
    const bool tab = event.KeyCode == key::Tab;
    const bool backwards = tab && (event.Shift & ShiftMask) != 0;
    if (event.KeyCode == key::Return) {
        event.KeyCode = 0;
        disks_->enterRetransfer();
    } else if (event.KeyCode == key::Up || backwards) {
        PrevField(*this, TabIndex(&eSaihi));
    } else if (tab) {  // leaves the prompt without deciding
        NextField(*this, TabIndex(&eSaihi));
    }
}

void Seikyu_frm::runBilling() {
    const Date day = creation();
    if (!IsDateSet(day)) {
        ShowAlert(u"作成日を正しく入れて下さい。"_s);
        return;
    }
    // The year is left unasked: a bill made in the new year for the old one is no mistake.
    if (Month(day) != NumVal(ebox(kMonth).Text())) {
        ShowAlert(u"月度と作成日の月が違います。"_s);
        return;
    }
    const BillingMonth month{CLng(KeepNumeric(ebox(kYear).Text())), CLng(KeepNumeric(ebox(kMonth).Text()))};
    try {
        // One action to the session's end: only the operator leaves it half-way, and is told how to go on.
        LongRun run(u"請求データの作成"_s, LongRun::AtSessionEnd::GoesOn);
        BuildMonthLedger(month, day, run);
        CarryForwardMonth(month, run);
    } catch (const RuntimeError& error) {
        if (error.number() != CancelledByOperator) throw;
        ShowAlert(
            u"中止しました。この月の集計は途中です。\n"
            "もう一度「請求データの作成」を押すと、初めから集計し直します。"_s);
        return;
    }
    ShowAlert(u"集計しました。"_s);
}

}  // namespace akarix
