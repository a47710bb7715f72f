#include "entry/TorZan_frm.h"

#include <QVBoxLayout>
#include <array>

#include "entry/OpeningBalance.h"
#include "platform/forms/FieldLayout.h"
#include "platform/forms/FlexGrid.h"
#include "platform/forms/GridHead.h"
#include "platform/forms/Notice.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Literals.h"
#include "store/FieldValue.h"
#include "store/Lookup.h"
#include "store/dbAccess.h"
#include "toolkit/CellBox.h"
#include "toolkit/FieldBytes.h"
#include "toolkit/FieldWalk.h"
#include "toolkit/FilterTerms.h"
#include "values/NumStr.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {

namespace {

enum Box { kYear, kMonth, kRoute, kCustomer };
enum Picture { kPickRoute, kPickCustomer };
enum Button { kClose, kClear, kShow, kSave = 10 };
enum Column { kColCode, kColNamae, kColMonth, kColZan, kColumns };

constexpr std::array<GridHead, kColumns> kHeads{{
    {u"ｺｰﾄﾞ", 1000},
    {u"得意先名", 4000, AlignLeftCenter},
    {u"年月", 1200, AlignCenterCenter},
    {u"繰越金額", 1800},
}};

}  // namespace

TorZan_frm::TorZan_frm() : EntryForm(u"TorZan_frm"_s, u"得意先残設定"_s) {
    layOut();
    const PressEnter press = wireKeys(ebox, [this](int index) { return enter(index); });
    wireLookup(F6(kPickRoute), u"Rte"_s, u"ALL"_s, ebox(kRoute), press, kRoute);
    wireLookup(F6(kPickCustomer), u"Deal"_s, {}, ebox(kCustomer), press, kCustomer);
    on(
        &Btn(kClose), &CommandButton::Click, [this] { Unload(); });
    on(
        &Btn(kClear), &CommandButton::Click, [this] { clear(); });
    on(
        &Btn(kShow), &CommandButton::Click, [this] { show(); });
    on(
        &Btn(kSave), &CommandButton::Click, [this] { save(); });
    WireCellBox(
        *this, *List_, *tBox_, [this] { openBox(); }, [this](KeyEvent& event) { boxKey(event); });
}

void TorZan_frm::layOut() {
    constexpr int kNameBytes = 30;
    constexpr int kGridHeight = 420;
    const auto button = [this](Button index, const char16_t* caption) -> CommandButton& {
        return Btn.add(index, new CommandButton(QString::fromUtf16(caption)));
    };
    sRte_ = &Named(new Label({}, this), u"sRte"_s);
    sNamae_ = &Named(new Label({}, this), u"sNamae"_s);

    FieldLayout fields(*this);
    fields.row(u"初期残設定年月"_s)
        .text(addBox(ebox, kYear, ImeMode::Off), 4)
        .note(u"年"_s)
        .text(addBox(ebox, kMonth, ImeMode::Off), 2)
        .note(u"月度"_s);
    fields.row(u"地区"_s)
        .text(addBox(ebox, kRoute, ImeMode::Off), kIntegerBytes, kLongKeyBytes)
        .lookup(F6.add(kPickRoute, new Image))
        .name(*sRte_, kNameBytes);
    fields.row(u"コード"_s)
        .text(addBox(ebox, kCustomer, ImeMode::Off), kLongKeyBytes)
        .lookup(F6.add(kPickCustomer, new Image))
        .name(*sNamae_, kNameBytes)
        .button(button(kShow, u"表示"));

    List_ = &Named(new FlexGrid(this), u"List"_s);
    SetHeads(*List_, kHeads);
    ReserveRoom(*List_, kGridHeight);
    tBox_ = &Named(new TextBox(this), u"tBox"_s);
    tBox_->SetIMEMode(ImeMode::Off);
    tBox_->setAlignment(Qt::AlignRight);
    tBox_->hide();

    auto* bar = new QHBoxLayout;
    bar->addStretch();
    for (CommandButton* each :
         {&button(kSave, u"保存"), &button(kClear, u"画面ｸﾘｱ"), &button(kClose, u"閉じる")}) {
        JoinWalk(*this, *each);
        bar->addWidget(each);
    }
    auto* body = new QVBoxLayout(this);
    body->addLayout(fields.layout());
    body->addWidget(List_, 1);
    body->addLayout(bar);
}

void TorZan_frm::init() {
    clear();
}

void TorZan_frm::clear() {
    ClearControls(*this);
    sRte_->SetCaption({});
    sNamae_->SetCaption({});
    List_->SetRows(1);
    tBox_->hide();
    FocusSelect(ebox(kYear));
}

bool TorZan_frm::enter(int index) {
    const double code = NumVal(ebox(index).Text());
    if (index == kRoute) sRte_->SetCaption(GetName(u"Rte"_s, code));
    if (index == kCustomer) sNamae_->SetCaption(GetDealName(code));
    return true;
}

LedgerMonth TorZan_frm::month() const {
    return {CInt(NumVal(ebox(kYear).Text())), CInt(NumVal(ebox(kMonth).Text()))};
}

// ---- the balances

void TorZan_frm::show() {
    constexpr int kLastMonth = 12;
    const LedgerMonth wanted = month();
    if (wanted.Nendo == 0 || wanted.Getudo < 1 || wanted.Getudo > kLastMonth) return;
    List_->SetRows(1);
    gDb->Execute(u"DELETE *.* From TempZan"_s);
    gDb->Execute(u"INSERT INTO TempZan ( Code, Zan ) SELECT Code, 0 From Deal WHERE Deal.Code>0"_s +
                 FilterTerms({{ebox(kCustomer), u" AND Deal.Code="}, {ebox(kRoute), u" AND Deal.Rte="}}));
    gDb->Execute(
        u"UPDATE TempZan INNER JOIN TtoD ON TempZan.Code = TtoD.Deal SET TempZan.Zan "
        "= [TtoD].[ZenkaiGaku] WHERE TtoD.Nendo="_s +
        NumStr(wanted.Nendo) + u" AND TtoD.Getudo="_s + NumStr(wanted.Getudo));
    fill(wanted);
    if (List_->Rows() <= 1) return;
    List_->SetRow(1);
    List_->SetCol(kColZan);
    openBox();  // the cursor may have stood there before
}

void TorZan_frm::fill(LedgerMonth month) {
    Recordset rows = gDb->OpenRecordset(
        u"SELECT Deal.*, TempZan.Zan FROM TempZan INNER JOIN Deal ON "
        "TempZan.Code = Deal.Code ORDER BY Deal.Code"_s);
    if (rows.Eof()) return;
    rows.MoveLast();
    List_->SetRows(rows.RecordCount() + 1);
    rows.MoveFirst();
    const Field& code = rows.Fields(u"Code"_s);
    const Field& namae = rows.Fields(u"Namae"_s);
    const Field& zan = rows.Fields(u"Zan"_s);
    const QString monthText = NumStr(month.Nendo) + u'/' + NumStr(month.Getudo);
    for (int row = 1; !rows.Eof(); ++row, rows.MoveNext()) {
        List_->SetTextMatrix(row, kColCode, NumStr(code.Value()));
        List_->SetTextMatrix(row, kColNamae, NullToEmpty(namae.Value()));
        List_->SetTextMatrix(row, kColMonth, monthText);
        List_->SetTextMatrix(row, kColZan, Format(MoneyOf(zan.Value()), u"###,###,##0"_s));
    }
    rows.Close();
}

void TorZan_frm::save() {
    if (List_->Rows() <= 1) return;
    const LedgerMonth wanted = month();
    for (int row = 1; row < List_->Rows(); ++row) {
        SetOpeningBalance(CLng(NumVal(List_->TextMatrix(row, kColCode))), wanted.Nendo, wanted.Getudo,
                          CCur(KeepNumeric(List_->TextMatrix(row, kColZan))));
    }
    clear();
    NoticeSaved();
}

// ---- the cells

void TorZan_frm::openBox() {
    if (List_->Rows() > 1 && List_->Col() == kColZan)
        EditCell(*List_, *tBox_);
    else
        LeaveCell(*List_, *tBox_);
}

void TorZan_frm::boxKey(KeyEvent& event) {
    switch (event.KeyCode) {
        case key::Return:
            confirm();
            break;
        // Going up and down passes a balance by: what was typed over it is dropped.
        case key::Down:
            moveTo(List_->Row() + 1);
            break;
        case key::Up:
            moveTo(List_->Row() - 1);
            break;
        case key::Escape:
            LeaveCell(*List_, *tBox_);
            break;
        default:
            return;
    }
    event.KeyCode = 0;
}

void TorZan_frm::confirm() {
    if (List_->Col() != kColZan) return;
    List_->SetText(tBox_->Text());
    if (List_->Row() + 1 < List_->Rows()) return moveTo(List_->Row() + 1);
    tBox_->hide();
    SetFocus(&Btn(kSave));
}

/// The box follows the grid's cursor; at the ends it is laid on the same cell anew.
void TorZan_frm::moveTo(int row) {
    if (List_->Col() != kColZan) return;
    if (row < 1 || row >= List_->Rows()) return openBox();
    List_->SetRow(row);
}

}  // namespace akarix
