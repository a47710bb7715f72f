#include "entry/TorZan_frm.h"

#include <QVBoxLayout>

#include "entry/OpeningBalance.h"
#include "platform/forms/Notice.h"
#include "platform/runtime/Conversion.h"
#include "store/dbAccess.h"
#include "toolkit/FilterTerms.h"
#include "toolkit/GridColumns.h"
#include "values/NumStr.h"
#include "values/NumVal.h"

namespace akarix {

namespace {

enum Box { kYear, kMonth, kRoute, kCustomer };
enum Picture { kPickRoute, kPickCustomer };
enum Button { kClose, kClear, kShow, kSave = 10 };
enum Column { kColCode, kColNamae, kColMonth, kColZan };

const GridColumns kColumns = {
    {u"ｺｰﾄﾞ", 1000, AlignRightCenter, u"Code", Number},
    {u"得意先名", 4000, AlignLeftCenter, u"Namae"},
    {u"年月", 1200, AlignCenterCenter},
    {u"繰越金額", 1800, AlignRightCenter, u"Zan", Figure(u"###,###,##0"_s)},
};

}  // namespace

TorZan_frm::TorZan_frm() : EntryForm(u"TorZan_frm"_s, u"得意先残設定"_s) {
    constexpr int kGridHeight = 420;
    FieldLayout fields(*this);
    addMonth(fields.row(u"初期残設定年月"_s), kYear, kMonth, u"月度"_s);
    addCode(fields.row(u"地区"_s), kRoute, {kPickRoute, u"Rte"_s, u"sRte"_s}, kIntegerBytes, kLongKeyBytes);
    addCode(fields.row(u"コード"_s), kCustomer, {kPickCustomer, u"Deal"_s, u"sNamae"_s})
        .button(Btn.add(kShow, newButton(u"表示"_s, [this] { show(); })));

    List_ = &Named(new FlexGrid(this), u"List"_s);
    SetColumns(*List_, kColumns);
    ReserveRoom(*List_, kGridHeight);
    cell_.emplace(
        *this, *List_, [](int column) { return column == kColZan; },
        [this](int keyCode) { return cellKey(keyCode); });

    auto* body = new QVBoxLayout(this);
    body->addLayout(fields.layout());
    body->addWidget(List_, 1);
    body->addLayout(buttonBar({{kSave, u"保存"_s, [this] { save(); }, Keeps},
                               {kClear, u"画面ｸﾘｱ"_s, [this] { clear(); }},
                               {kClose, u"閉じる"_s, [this] { Unload(); }}}));
}

void TorZan_frm::init() {
    clear();
}

void TorZan_frm::clear() {
    emptyFields();
    List_->SetRows(1);
    cell_->hide();
    FocusSelect(ebox(kYear));
}

BillingMonth TorZan_frm::month() const {
    return {CInt(NumVal(ebox(kYear).Text())), CInt(NumVal(ebox(kMonth).Text()))};
}

// ---- the balances

void TorZan_frm::show() {
    constexpr int kLastMonth = 12;
    const BillingMonth wanted = month();
    if (wanted.nendo == 0 || wanted.getudo < 1 || wanted.getudo > kLastMonth) return;
    List_->SetRows(1);
    gDb->Execute(u"DELETE *.* From TempZan"_s);
    gDb->Execute(u"INSERT INTO TempZan ( Code, Zan ) SELECT Code, 0 From Deal WHERE Deal.Code>0"_s +
                 FilterTerms({{ebox(kCustomer), u" AND Deal.Code="}, {ebox(kRoute), u" AND Deal.Rte="}}));
    gDb->Execute(
        u"UPDATE TempZan INNER JOIN TtoD ON TempZan.Code = TtoD.Deal SET TempZan.Zan "
        "= [TtoD].[ZenkaiGaku] WHERE TtoD.Nendo="_s +
        NumStr(wanted.nendo) + u" AND TtoD.Getudo="_s + NumStr(wanted.getudo));
    Recordset rows = gDb->OpenRecordset(
        u"SELECT Deal.*, TempZan.Zan FROM TempZan INNER JOIN Deal ON "
        "TempZan.Code = Deal.Code ORDER BY Deal.Code"_s);
    const QString monthText = NumStr(wanted.nendo) + u'/' + NumStr(wanted.getudo);
    const auto putMonthText = [&](int row) { List_->SetTextMatrix(row, kColMonth, monthText); };
    if (FillGrid(*List_, kColumns, rows, putMonthText) == 0) return;
    List_->SetRow(1);
    List_->SetCol(kColZan);
    cell_->open();  // the cursor may have stood there before
}

void TorZan_frm::save() {
    if (List_->Rows() <= 1) return;
    const BillingMonth wanted = month();
    for (int row = 1; row < List_->Rows(); ++row) {
        SetOpeningBalance(CLng(NumVal(List_->TextMatrix(row, kColCode))), wanted,
                          CCur(KeepNumeric(List_->TextMatrix(row, kColZan))));
    }
    clear();
    NoticeSaved();
}

// ---- the cells

bool TorZan_frm::cellKey(int keyCode) {
    switch (keyCode) {
        case key::Return:
            confirm();
            return true;
        // Going up and down passes a balance by: what was typed over it is dropped.
        case key::Down:
            moveTo(List_->Row() + 1);
            return true;
        case key::Up:
            moveTo(List_->Row() - 1);
            return true;
        default:
            return false;
    }
}

void TorZan_frm::confirm() {
    List_->SetText(cell_->Text());
    if (List_->Row() + 1 < List_->Rows()) return moveTo(List_->Row() + 1);
    cell_->hide();
    SetFocus(&Btn(kSave));
}

/// The box follows the grid's cursor; at the ends it is laid on the same cell anew.
void TorZan_frm::moveTo(int row) {
    if (row < 1 || row >= List_->Rows()) return cell_->open();
    List_->SetRow(row);
}

}  // namespace akarix
