#include "entry/SlipG_frm.h"

#include <QScopeGuard>
#include <QVBoxLayout>

#include "billing/Sub.h"
#include "dialogs/AskConfirm.h"
#include "dialogs/ShowAlert.h"
#include "entry/GasUsage.h"
#include "output/EX.h"
#include "platform/forms/Notice.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Format.h"
#include "store/Lookup.h"
#include "toolkit/FilterTerms.h"
#include "toolkit/GridColumns.h"
#include "toolkit/Lookups.h"
#include "values/NumStr.h"
#include "values/NumVal.h"

namespace akarix {

namespace {

enum Box { kYear, kMonth, kDay, kRoute, kCustomer };
enum Button { kClear, kDelete, kSave, kExport };

enum Column {
    kColDeal,
    kColNamae,
    kColZenkaiMeter,
    kColKoukanMeter,
    kColKoukanGoMeter,
    kColKonkaiMeter,
    kColSuu,
    kColGaku,
    kColHi
};

const GridColumns kColumns = {
    {u"ｺｰﾄﾞ", 1000, AlignRightCenter, u"Deal", Number},
    {u"得意先", 2000, AlignLeftCenter},
    {u"前回検針値", 1300, AlignRightCenter, u"ZenkaiMeter", Figure(u"#,##0.0"_s)},
    {u"交換検針値", 1300, AlignRightCenter, u"KoukanMeter", Figure(u"#,###.#"_s)},
    {u"交換後の値", 1300, AlignRightCenter, u"KoukanGoMeter", Figure(u"#,###.#"_s)},
    {u"今回検針値", 1300, AlignRightCenter, u"KonkaiMeter", Figure(u"#,##0.0"_s)},
    {u"使用量", 1000, AlignRightCenter, u"Suu", Figure(u"#,##0.0"_s)},
    {u"料金", 1400, AlignRightCenter, u"Gaku", Figure(u"##,##0"_s)},
    {u"検針日", 1000, AlignRightCenter, u"Hi", Figure(u"##"_s)},
};

bool IsTyped(int column) {
    return column >= kColZenkaiMeter && column != kColSuu;
}

constexpr int kEarliestYear = 2000;

QString Slashed(const QString& year, const QString& month, const QString& day) {
    return year + u'/' + month + u'/' + day;
}

}  // namespace

SlipG_frm::SlipG_frm() : EntryForm(u"SlipG_frm"_s, u"検針入力"_s) {
    layOut();
    on(&ebox(kRoute), &TextBox::LostFocus, [this] { takeRouteDay(); });
    on(List_, &FlexGrid::KeyDown, [this](KeyEvent& event) {
        if (event.KeyCode != key::Tab) return;
        event.KeyCode = 0;
        if (event.Shift == 0) return SetFocus(Command1_);
        FocusSelect(ebox(kCustomer));
    });
    cell_.emplace(*this, *List_, &IsTyped, [this](int keyCode) { return cellKey(keyCode); });
}

void SlipG_frm::layOut() {
    constexpr int kGridHeight = 460;
    FieldLayout fields(*this);
    addMonth(fields.row(u"検針日"_s), kYear, kMonth, u"月分"_s)
        .text(addBox(kDay), kIntegerBytes)
        .note(u"日"_s);
    // A picked route goes the way of the day box: the walk then comes to the route and reads it there.
    addCode(fields.row(u"地区"_s), kRoute,
            {.picture = 0, .table = u"Rte"_s, .nameLabel = u"sRte"_s, .goesOnAt = kDay}, kIntegerBytes,
            kLongKeyBytes);
    FieldLine customer = fields.row(u"コード"_s)
                             .text(addBox(kCustomer), kLongKeyBytes)
                             .lookup(addLookup(1, u"Deal"_s, kCustomer));
    Command1_ = &Named(newButton(u"表示"_s, [this] { showMonth(); }), u"Command1"_s);
    customer.button(*Command1_);

    List_ = &Named(new FlexGrid(this), u"List"_s);
    SetColumns(*List_, kColumns);
    ReserveRoom(*List_, kGridHeight);

    auto* body = new QVBoxLayout(this);
    body->addLayout(fields.layout());
    body->addWidget(List_, 1);
    // From the sheet the walk leads to its keeping, and to what takes it away last.
    body->addLayout(buttonBar({{kSave, u"保存"_s, [this] { save(); }, Keeps},
                               {kExport, u"Excel"_s, [this] { exportGrid(); }},
                               {kClear, u"画面クリア"_s, [this] { clear(); }},
                               {kDelete, u"削除"_s, [this] { askAndDelete(); }, Removes}}));
}

void SlipG_frm::init() {
    if (!mayDropReadings()) return;
    SetColumns(*List_, kColumns);
    defaultDay_ = CInt(KeepNumeric(GetContents(u"SELECT Contents FROM zSysFunc WHERE Code=3"_s)));
    clear();
}

void SlipG_frm::fromexe(std::int16_t& Nendo, std::int16_t& Getudo, std::int32_t& Deal) {
    if (Nendo < 1 || Getudo < 1 || Deal < 1 || !mayDropReadings()) return;
    init();
    ebox(kYear).SetText(NumStr(Nendo));
    ebox(kMonth).SetText(NumStr(Getudo));
    ebox(kCustomer).SetText(NumStr(Deal));
    showMonth();
}

bool SlipG_frm::holdsWork() const {
    // What is typed above the sheet is no reading; kept alone it would empty the month.
    return EntryForm::holdsWork() && List_->Rows() > 1;
}

void SlipG_frm::QueryUnload(bool& cancel) {
    cancel = !mayDropReadings();
}

/// False when the clerk wants to keep what stands on the sheet.
bool SlipG_frm::mayDropReadings() {
    if (unsaved_ && AskConfirmRev(u"保存していない検針値を捨てますか？"_s, u"いいえ"_s, u"捨てる"_s))
        return false;
    unsaved_ = false;
    return true;
}

void SlipG_frm::clear() {
    emptyFields();
    putMonth(kYear, kMonth, Today());
    if (defaultDay_ >= 1) ebox(kDay).SetText(NumStr(defaultDay_));
    Command1_->setEnabled(true);
    List_->SetRows(1);
    cell_->hide();
    unsaved_ = false;
    FocusSelect(ebox(kYear));
}

// ---- the head

bool SlipG_frm::enter(int index) {
    const auto month = [this] { return NumVal(ebox(kMonth).Text()); };
    switch (index) {
        case kYear:
            return NumVal(ebox(kYear).Text()) >= kEarliestYear;
        case kMonth:
            return month() >= 1 && month() <= 12;
        case kDay:
            // The month, not the day, is held against 31: a day past the month's end is the save's to tell.
            return NumVal(ebox(kDay).Text()) >= 1 && month() <= 31;
        case kCustomer:
            SetFocus(Command1_);
            return false;
        default:
            return true;
    }
}

void SlipG_frm::takeRouteDay() {
    const std::int16_t day = CInt(GetKensinDay(NumVal(ebox(kRoute).Text())));
    if (day > 0) ebox(kDay).SetText(NumStr(day));
}

QString SlipG_frm::filter() const {
    return FilterTerms({{ebox(kRoute), u" AND Deal.Rte="}, {ebox(kCustomer), u" AND Deal.Code="}});
}

MonthReadings SlipG_frm::month() const {
    return {KeepNumeric(ebox(kYear).Text()), KeepNumeric(ebox(kMonth).Text())};
}

// ---- the buttons

void SlipG_frm::showMonth() {
    // Switched off, the button loses the keyboard to its neighbour; it gets it back unless a field took it.
    const bool pressed = focusWidget() == Command1_;
    Command1_->setEnabled(false);
    const auto enable = qScopeGuard([this, pressed, neighbour = focusWidget()] {
        Command1_->setEnabled(true);
        if (pressed && focusWidget() == neighbour) Command1_->setFocus();
    });
    for (const int field : {kYear, kMonth}) {
        if (enter(field)) continue;
        FocusSelect(ebox(field));
        return;
    }
    if (!mayDropReadings()) return;
    List_->SetRows(1);
    List_->Refresh();
    Recordset rows = month().show(filter(), KeepNumeric(ebox(kDay).Text()));
    if (rows.Eof()) return;
    rows.MoveLast();
    static_cast<void>(CInt(rows.RecordCount()));  // a sheet has no more rows than an Integer counts
    const QHash<std::int32_t, QString> names = month().names(filter());
    FillGrid(*List_, kColumns, rows, [&](int row) {
        List_->SetTextMatrix(row, kColNamae, names.value(ToLong(List_->TextMatrix(row, kColDeal)), u" "_s));
    });
    List_->SetRow(1);
    List_->SetCol(kColKonkaiMeter);
    cell_->open();
}

void SlipG_frm::save() {
    const QString day = ebox(kDay).Text();
    if (!IsDate(Slashed(ebox(kYear).Text(), ebox(kMonth).Text(), day))) {
        ShowAlert(u"検針日を正しく入れて下さい。"_s);
        return;
    }
    const MonthReadings readings = month();
    // The whole month goes, whatever part of it the grid shows: a month is entered and saved as one.
    readings.clear();
    for (int row = 1; row < List_->Rows(); ++row) {
        const auto number = [this, row](int column) { return KeepNumeric(List_->TextMatrix(row, column)); };
        if (NumVal(number(kColDeal)) == 0) continue;
        QStringList rest;
        for (int column = kColKoukanMeter; column <= kColGaku; ++column)
            rest += number(column);
        // One day for all: what a row's own day column shows is not kept.
        rest += KeepNumeric(day);
        readings.add(number(kColDeal), number(kColZenkaiMeter), rest);
    }
    clear();
    NoticeSaved();
}

void SlipG_frm::askAndDelete() {
    if (AskConfirmRev(u"この月度の検針を削除します。"_s, u"いいえ"_s, u"削除"_s)) return;
    month().clearRoute(KeepNumeric(ebox(kRoute).Text()));
    clear();
}

void SlipG_frm::exportGrid() {
    if (List_->Rows() <= 1) return;
    GridToExcel(u"検針入力一覧"_s, u"ルート : "_s + ebox(kRoute).Text() + u" : "_s + nameOf(kRoute),
                Slashed(ebox(kYear).Text(), ebox(kMonth).Text(), ebox(kDay).Text()), *List_);
}

// ---- the cells

bool SlipG_frm::cellKey(int keyCode) {
    if (keyCode != key::Return && keyCode != key::Down) return false;
    confirmCell();
    return true;
}

void SlipG_frm::confirmCell() {
    const int row = List_->Row();
    switch (List_->Col()) {
        case kColZenkaiMeter:
        case kColKoukanMeter:
        case kColKoukanGoMeter:
        case kColGaku:
            takeCell();
            cell_->leave();
            break;
        case kColKonkaiMeter:
            takeCell();
            calculateRow(row);
            if (row + 1 < List_->Rows())
                List_->SetRow(row + 1);
            else
                FocusSelect(ebox(kRoute));
            break;
        case kColHi:
            if (!isDayOfMonth(cell_->Text())) break;
            takeCell();
            cell_->leave();
            break;
        default:
            break;
    }
}

void SlipG_frm::takeCell() {
    List_->SetText(cell_->Text());
    unsaved_ = true;
}

void SlipG_frm::calculateRow(int row) {
    const auto money = [this, row](int column) { return CCur(KeepNumeric(List_->TextMatrix(row, column))); };
    const Currency usage = CalcGasUsage(money(kColZenkaiMeter), money(kColKoukanMeter),
                                        money(kColKoukanGoMeter), money(kColKonkaiMeter));
    List_->SetTextMatrix(row, kColSuu, Format(usage, u"#,##0.0"_s));
    const std::int32_t deal = CLng(KeepNumeric(List_->TextMatrix(row, kColDeal)));
    List_->SetTextMatrix(row, kColGaku, Format(CalcGasCharge(deal, usage), u"###,##0"_s));
}

bool SlipG_frm::isDayOfMonth(const QString& day) const {
    return IsDate(Slashed(ebox(kYear).Text(), ebox(kMonth).Text(), NumStr(NumVal(day))));
}

}  // namespace akarix
