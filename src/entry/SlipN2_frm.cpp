#include "entry/SlipN2_frm.h"

#include <QGroupBox>
#include <QVBoxLayout>

#include "entry/OpeningBalance.h"
#include "entry/PaymentHistory.h"
#include "entry/PaymentLedger.h"
#include "platform/forms/Notice.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Format.h"
#include "store/FieldValue.h"
#include "store/dbAccess.h"
#include "toolkit/GridColumns.h"
#include "toolkit/Lookups.h"
#include "values/Dates.h"
#include "values/NumStr.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {

namespace {

enum Box {
    kNumber,
    kCustomer,
    kDate,
    kOpeningYear = 4,
    kOpeningMonth,
    kOpeningAmount,
    kHistoryYear,
    kHistoryMonth
};
enum Button { kClear, kDelete, kSave, kSaveOpening, kShow };
enum Picture { kPickSlip, kPickCustomer };

constexpr int kDateBytes = 10;

DocumentTexts Texts() {
    return {.highest = u"SELECT MAX(Dno) AS tDno FROM Dny"_s,
            .left = u"SELECT * FROM Dny WHERE Dno<%1 ORDER BY Dno DESC,Hizuke DESC"_s,
            .right = u"SELECT * FROM Dny WHERE Dno>%1 ORDER BY Dno ,Hizuke DESC"_s};
}

QString Yen(Currency amount) {
    return Format(amount, u"###,###,###"_s);
}

constexpr int kLastMonth = 12;

bool IsMonth(double value) {
    return value >= 1 && value <= kLastMonth;
}

}  // namespace

SlipN2_frm::SlipN2_frm() : DocumentForm(u"SlipN2_frm"_s, u"入金入力"_s, Texts()) {
    constexpr int kBetweenColumns = 24;
    auto* columns = new QHBoxLayout;
    columns->setSpacing(kBetweenColumns);
    columns->addLayout(layOutSlip());
    columns->addLayout(layOutHistory(), 1);
    body().addLayout(columns, 1);
    // Last in the walk: its month holds the keyboard until it is one.
    body().addWidget(layOutOpening());
}

// ---- layout

QVBoxLayout* SlipN2_frm::layOutSlip() {
    constexpr int kBetweenGroups = 12;
    auto* column = new QVBoxLayout;
    column->setSpacing(kBetweenGroups);
    layOutHead(*column);
    layOutLines(*column);
    addBar({{kSave, u"入金保存"_s, [this] { save(); }, Keeps},
            {kClear, u"画面クリア"_s, [this] { clear(); }},
            {kDelete, u"削除"_s, [this] { remove(); }, Removes}},
           column);
    return column;
}

void SlipN2_frm::layOutHead(QVBoxLayout& column) {
    FieldLayout head(*this);
    head.row(u"伝票番号"_s)
        .text(addBox(kNumber), kLongKeyBytes)
        .lookup(addLookup(
            kPickSlip, [this] { return requireCustomer() ? PickPayment(number(kCustomer)) : QString(); },
            kNumber));
    addCode(head.row(u"得意先"_s), kCustomer, {kPickCustomer, u"Deal"_s, u"sNamae"_s});
    head.row(u"入金日"_s).text(addBox(kDate), kDateBytes);
    column.addLayout(head.layout());
}

void SlipN2_frm::layOutLines(QVBoxLayout& column) {
    constexpr int kClassShown = 12;
    constexpr int kTextBytes = 40;
    LineLayout lines(*this);
    lines.head(u"区分"_s);
    lines.head(u"金額"_s, Qt::AlignRight);
    lines.head(u"内容"_s);
    for (int line = 0; line < PaymentSlip::kLines; ++line) {
        lines.cell(line, 0).combo(dKubun.add(line, newList()), kClassShown);
        TextBox& amount = eGaku.add(line, newBox());
        amount.setAlignment(Qt::AlignRight);
        on(&amount, &TextBox::LostFocus, [this] { showTotal(); });
        lines.cell(line, 1).text(amount, kCurrencyBytes, kCurrencyShown);
        lines.cell(line, 2).text(eNaiyo.add(line, newBox(ImeMode::Hiragana)), kTextBytes);
    }
    total_ = &addName(u"sTotal"_s);
    total_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    constexpr int kUnderFigures = 6;  // the amounts above stand that far from their frames
    total_->setIndent(kUnderFigures);
    auto* caption = new Label(u"合計"_s);
    caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lines.layout()->addWidget(caption, PaymentSlip::kLines + 1, 0);
    lines.layout()->addWidget(total_, PaymentSlip::kLines + 1, 1);
    column.addLayout(lines.layout());
}

QVBoxLayout* SlipN2_frm::layOutHistory() {
    FieldLayout start(*this);
    ledgerEnd_ = &Named(new Label({}, this), u"ledgerEnd"_s);
    ledgerEnd_->setForegroundRole(QPalette::PlaceholderText);
    addMonth(start.row(u"売掛表示年月"_s), kHistoryYear, kHistoryMonth, u"月から"_s)
        .button(Btn.add(kShow, newButton(u"表示"_s, [this] { showHistory(); })));
    start.row({}).widget(ledgerEnd_);

    List_ = &Named(new FlexGrid(this), u"List"_s);
    EmptyHistory(*List_);
    constexpr int kHeight = 300;
    ReserveRoom(*List_, kHeight);

    auto* column = new QVBoxLayout;
    column->addLayout(start.layout());
    column->addWidget(List_, 1);
    return column;
}

QGroupBox* SlipN2_frm::layOutOpening() {
    auto* group = new QGroupBox(u"初期繰越の作成"_s, this);
    auto* line = new QHBoxLayout(group);
    line->addStretch();
    addMonth(FieldLine(*this, line), kOpeningYear, kOpeningMonth, u"月請求の前回請求額"_s)
        .text(addAmount(kOpeningAmount), kCurrencyBytes, kCurrencyShown)
        .button(Btn.add(kSaveOpening, newButton(
                                          u"繰越保存"_s, [this] { saveOpening(); }, Keeps)))
        .note(u"初期繰り越しの削除は0でエンター"_s);
    return group;
}

// ---- the slip on the screen

void SlipN2_frm::init() {
    for (const auto& [line, list] : dKubun)
        fillClasses(*list);
    showLedgerEnd(LatestLedgerMonth());
    clear();
}

void SlipN2_frm::fillClasses(ComboBox& list) {
    list.clear();
    Recordset rows = gDb->OpenRecordset(u"SELECT Code,Namae FROM NyukinKubun ORDER BY Code"_s);
    for (; !rows.Eof(); rows.MoveNext())
        list.AddItem(NullToEmpty(rows[u"Namae"_s]), LongOf(rows[u"Code"_s]));
    list.SetListIndex(-1);
}

void SlipN2_frm::fromexe(std::int32_t& Dno) {
    openDocument(Dno);
}

void SlipN2_frm::showDefaults() {
    EmptyHistory(*List_);
}

void SlipN2_frm::load() {
    const PaymentSlip slip = LoadPayment(number(kNumber));
    const QString typed = ebox(kNumber).Text();
    const QString customer = ebox(kCustomer).Text();
    if (slip.Dno != 0) {
        emptyFields();
        ebox(kNumber).SetText(typed);
        return show(slip);
    }
    clear();
    ebox(kNumber).SetText(typed);
    ebox(kCustomer).SetText(customer);
    if (number(kCustomer) != 0) showName(kCustomer);
}

void SlipN2_frm::show(const PaymentSlip& slip) {
    ebox(kCustomer).SetText(NumStr(slip.Deal));
    showName(kCustomer);
    ebox(kDate).SetText(DateText(slip.Hizuke));
    for (const auto& [line, list] : dKubun) {
        const PaymentLine& paid = slip.lines[static_cast<std::size_t>(line)];
        list->SetListIndex(list->findData(int{paid.Kubun}));
        eGaku(line).SetText(Yen(paid.Gaku));
        eNaiyo(line).SetText(paid.Naiyo);
    }
    showTotal();
    putMonth(kHistoryYear, kHistoryMonth, slip.Hizuke);
    ShowPaymentHistory(*List_, slip.Deal, BillingMonth::Of(slip.Hizuke));
}

void SlipN2_frm::showTotal() {
    Currency total;
    for (const auto& [line, box] : eGaku)
        total += ToCurrency(box->Text());
    total_->SetCaption(Yen(total));
}

void SlipN2_frm::showLedgerEnd(BillingMonth end) {
    end_ = end;
    ledgerEnd_->SetCaption(
        end.nendo == 0 ? QString() : u"売掛は%1年%2月まで"_s.arg(NumStr(end.nendo), NumStr(end.getudo)));
}

bool SlipN2_frm::enter(int index) {
    switch (index) {
        case kNumber:
            load();
            return true;
        case kDate:
            ebox(kDate).SetText(DateText(date()));
            return true;
        case kOpeningMonth:
            return IsMonth(NumVal(ebox(kOpeningMonth).Text()));
        default:
            return true;
    }
}

// ---- the slip in the store

std::int32_t SlipN2_frm::number(int index) const {
    return CLng(NumVal(ebox(index).Text()));
}

Date SlipN2_frm::date() const {
    return ParseDate(ebox(kDate).Text());
}

PaymentSlip SlipN2_frm::slipOnScreen() const {
    PaymentSlip slip{number(kNumber), number(kCustomer), date(), {}};
    for (const auto& [line, list] : dKubun) {
        slip.lines[static_cast<std::size_t>(line)] = {CInt(list->currentData().toInt()),
                                                      ToCurrency(eGaku(line).Text()), eNaiyo(line).Text()};
    }
    return slip;
}

bool SlipN2_frm::requireCustomer() {
    return number(kCustomer) != 0 || refuse(u"得意先を入れてください。"_s, kCustomer);
}

bool SlipN2_frm::maySave() {
    if (number(kNumber) == 0) return refuse(u"伝票番号を入れてください。"_s, kNumber);
    if (!requireCustomer()) return false;
    return date() != Date() || refuse(u"入金日を入れてください。"_s, kDate);
}

void SlipN2_frm::save() {
    if (!maySave()) return;
    // The screen is read whole before anything is written: a text that is no amount costs no stored line.
    const BillingMonth saved = SavePayment(slipOnScreen());
    // A save can only lengthen the ledger. Asking for its end would take longer than everything else.
    showLedgerEnd(std::max(end_, saved));
    clear();
    NoticeSaved();
}

void SlipN2_frm::remove() {
    const std::int32_t dno = number(kNumber);
    if (dno == 0) return;
    DeletePayment(dno, number(kCustomer), date());
    clear();
}

// ---- the customer's ledger

void SlipN2_frm::saveOpening() {
    const BillingMonth month{CInt(NumVal(ebox(kOpeningYear).Text())),
                             CInt(NumVal(ebox(kOpeningMonth).Text()))};
    // Nothing below is asked for: what a take-over put under a month 0 can be taken away here as well.
    if (month.getudo > kLastMonth) return;
    const Currency amount = ToCurrency(ebox(kOpeningAmount).Text());
    if (amount.IsZero())
        RemoveOpeningBalance(number(kCustomer), month);
    else
        SetOpeningBalance(number(kCustomer), month, amount);
    showLedgerEnd(amount.IsZero() ? LatestLedgerMonth() : std::max(end_, month));
    clear();
    NoticeSaved();
}

void SlipN2_frm::showHistory() {
    ShowLedgerHistory(*List_, number(kCustomer),
                      {CInt(NumVal(ebox(kHistoryYear).Text())), CInt(NumVal(ebox(kHistoryMonth).Text()))});
}

}  // namespace akarix
