#include "entry/SlipG_frm.h"

#include <QScopeGuard>
#include <QVBoxLayout>
#include <array>
#include <vector>

#include "billing/Sub.h"
#include "dialogs/AskConfirm.h"
#include "dialogs/ShowAlert.h"
#include "entry/GasUsage.h"
#include "output/EX.h"
#include "platform/forms/FieldLayout.h"
#include "platform/forms/Notice.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Literals.h"
#include "store/FieldValue.h"
#include "store/Lookup.h"
#include "toolkit/CellBox.h"
#include "toolkit/FieldBytes.h"
#include "toolkit/FieldWalk.h"
#include "toolkit/FilterTerms.h"
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
    kColHi,
    kColumns
};

struct ColumnPlan {
    const char16_t* title;
    const char16_t* mask;
    std::int16_t width;
    const char16_t* align;
    bool editable;
    const char16_t* source;
};

constexpr std::array<ColumnPlan, kColumns> kPlan{{
    {u"ｺｰﾄﾞ", u"", 1000, u"R", false, u"Deal"},
    {u"得意先", u"S", 2000, u"L", false, u""},
    {u"前回検針値", u"#,##0.0", 1300, u"R", true, u"ZenkaiMeter"},
    {u"交換検針値", u"#,###.#", 1300, u"R", true, u"KoukanMeter"},
    {u"交換後の値", u"#,###.#", 1300, u"R", true, u"KoukanGoMeter"},
    {u"今回検針値", u"#,##0.0", 1300, u"R", true, u"KonkaiMeter"},
    {u"使用量", u"#,##0.0", 1000, u"R", false, u"Suu"},
    {u"料金", u"##,##0", 1400, u"R", true, u"Gaku"},
    {u"検針日", u"##", 1000, u"R", true, u"Hi"},
}};

constexpr int kEarliestYear = 2000;

QString Slashed(const QString& year, const QString& month, const QString& day) {
    return year + u'/' + month + u'/' + day;
}

/// A column of figures through its mask. A sheet is full of equal figures (nothing read, the same day), so
/// the last text is kept.
class FigureColumn {
 public:
    FigureColumn(const Field& source, const QString& mask) : source_(&source), mask_(mask) {}

    const QString& text() {
        const Currency value = MoneyOf(source_->Value());
        if (!known_ || value != value_) {
            text_ = Format(value, mask_);
            value_ = value;
            known_ = true;
        }
        return text_;
    }

 private:
    const Field* source_;  // found once, not for each of the rows
    QString mask_;
    QString text_;
    Currency value_;
    bool known_ = false;
};

}  // namespace

SlipG_frm::SlipG_frm() : EntryForm(u"SlipG_frm"_s, u"検針入力"_s) {
    layOut();
    const PressEnter press = wireKeys(
        ebox, [this](int index) { return enter(index); });
    on(&ebox(kRoute), &TextBox::LostFocus, [this] { takeRouteDay(); });
    // A picked route goes the way of the day box: the walk then comes to the route and reads it there.
    wireLookup(F6(0), u"Rte"_s, u"ALL"_s, ebox(kRoute), press, kDay);
    wireLookup(F6(1), u"Deal"_s, {}, ebox(kCustomer), press, kCustomer);
    on(
        Command1_, &CommandButton::Click, [this] { showMonth(); });
    on(
        &Btn(kClear), &CommandButton::Click, [this] { clear(); });
    on(
        &Btn(kDelete), &CommandButton::Click, [this] { askAndDelete(); });
    on(
        &Btn(kSave), &CommandButton::Click, [this] { save(); });
    on(&Btn(kExport), &CommandButton::Click, [this] { exportGrid(); });
    on(
        List_, &FlexGrid::KeyDown,
        [this](KeyEvent& event) {
            if (event.KeyCode != key::Tab) return;
            event.KeyCode = 0;
            if (event.Shift == 0) return SetFocus(Command1_);
            FocusSelect(ebox(kCustomer));
        });
    WireCellBox(
        *this, *List_, *tBox_, [this] { openEditor(); }, [this](KeyEvent& event) { cellKey(event); });
}

SlipG_frm::~SlipG_frm() {
    if (gGridForm != this) return;
    gGridForm = nullptr;
    gGrid = nullptr;
}

void SlipG_frm::layOut() {
    constexpr int kNameBytes = 30;
    FieldLayout fields(*this);
    fields.row(u"検針日"_s)
        .text(addBox(ebox, kYear, ImeMode::Off), 4)
        .note(u"年"_s)
        .text(addBox(ebox, kMonth, ImeMode::Off), 2)
        .note(u"月分"_s)
        .text(addBox(ebox, kDay, ImeMode::Off), kIntegerBytes)
        .note(u"日"_s);
    sRte_ = &Named(new Label({}, this), u"sRte"_s);
    fields.row(u"地区"_s)
        .text(addBox(ebox, kRoute, ImeMode::Off), kIntegerBytes, kLongKeyBytes)
        .lookup(F6.add(0, new Image))
        .name(*sRte_, kNameBytes);
    Command1_ = &Named(new CommandButton(u"表示"_s), u"Command1"_s);
    fields.row(u"コード"_s)
        .text(addBox(ebox, kCustomer, ImeMode::Off), kLongKeyBytes)
        .lookup(F6.add(1, new Image))
        .button(*Command1_);

    List_ = &Named(new FlexGrid(this), u"List"_s);
    List_->SetFixedRows(1);
    int width = 0;
    for (const ColumnPlan& column : kPlan)
        width += Twips(column.width);
    constexpr int kScrollBar = 24;
    constexpr int kGridHeight = 460;
    List_->SetRoom({width + kScrollBar, kGridHeight});
    tBox_ = &Named(new TextBox(this), u"tBox"_s);
    tBox_->setAlignment(Qt::AlignRight);  // all that is typed into the grid are numbers
    tBox_->hide();

    auto* body = new QVBoxLayout(this);
    body->addLayout(fields.layout());
    body->addWidget(List_, 1);
    // From the sheet the walk leads to its keeping, and to what takes it away last.
    auto* bar = new QHBoxLayout;
    bar->addStretch();
    const auto button = [this, bar](Button index, const QString& caption) {
        CommandButton& added = Btn.add(index, new CommandButton(caption));
        JoinWalk(*this, added);
        bar->addWidget(&added);
    };
    button(kSave, u"保存"_s);
    button(kExport, u"Excel"_s);
    button(kClear, u"画面クリア"_s);
    button(kDelete, u"削除"_s);
    body->addLayout(bar);
}

void SlipG_frm::defineColumns() {
    gGridForm = this;
    gGrid = List_;
    GridInit(u"List"_s);
    for (const ColumnPlan& plan : kPlan) {
        GridAddCol({QString::fromUtf16(plan.title), QString::fromUtf16(plan.mask), plan.width,
                    QString::fromUtf16(plan.align), plan.editable, u"T"_s,
                    static_cast<std::int16_t>(ImeMode::Off)});
    }
    GridApply();
}

void SlipG_frm::init() {
    if (!mayDropReadings()) return;
    List_->SetRows(1);
    defineColumns();
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
    ClearControls(*this);
    const Date today = Today();
    ebox(kYear).SetText(NumStr(Year(today)));
    ebox(kMonth).SetText(NumStr(Month(today)));
    if (defaultDay_ >= 1) ebox(kDay).SetText(NumStr(defaultDay_));
    sRte_->SetCaption({});
    Command1_->setEnabled(true);
    List_->SetRows(1);
    tBox_->hide();
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
        case kRoute:
            sRte_->SetCaption(GetName(u"Rte"_s, NumVal(ebox(kRoute).Text())));
            return true;
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
    fill(rows, month().names(filter()));
    List_->SetRow(1);
    List_->SetCol(kColKonkaiMeter);
    GridEdit();
}

void SlipG_frm::fill(Recordset& rows, const QHash<std::int32_t, QString>& names) {
    rows.MoveLast();
    const std::int16_t count = CInt(rows.RecordCount());
    rows.MoveFirst();
    List_->SetRows(count + 1);
    std::vector<FigureColumn> figures;
    for (int column = kColZenkaiMeter; column < kColumns; ++column) {
        figures.emplace_back(rows.Fields(QString::fromUtf16(kPlan[static_cast<std::size_t>(column)].source)),
                             gCols[column].Fmt);
    }
    for (int row = 1; row <= count; ++row, rows.MoveNext()) {
        const std::int32_t deal = LongOf(rows[u"Deal"_s]);
        List_->SetTextMatrix(row, kColDeal, NumStr(deal));
        List_->SetTextMatrix(row, kColNamae, names.value(deal, u" "_s));
        int column = kColZenkaiMeter;
        for (FigureColumn& figure : figures)
            List_->SetTextMatrix(row, column++, figure.text());
    }
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
    GridToExcel(u"検針入力一覧"_s, u"ルート : "_s + ebox(kRoute).Text() + u" : "_s + sRte_->Caption(),
                Slashed(ebox(kYear).Text(), ebox(kMonth).Text(), ebox(kDay).Text()), *List_);
}

// ---- the cells

void SlipG_frm::openEditor() {
    if (List_->Rows() <= 1) return;
    if (!gCols[List_->Col()].Editable) LeaveCell(*List_, *tBox_);
    GridEdit();
}

void SlipG_frm::cellKey(KeyEvent& event) {
    if (event.KeyCode == key::Return || event.KeyCode == key::Down) {
        event.KeyCode = 0;
        confirmCell();
    } else if (event.KeyCode == key::Escape) {
        event.KeyCode = 0;
        LeaveCell(*List_, *tBox_);
    }
}

void SlipG_frm::confirmCell() {
    const int row = List_->Row();
    switch (List_->Col()) {
        case kColZenkaiMeter:
        case kColKoukanMeter:
        case kColKoukanGoMeter:
        case kColGaku:
            takeCell();
            LeaveCell(*List_, *tBox_);
            break;
        case kColKonkaiMeter:
            takeCell();
            calculateRow(row);
            if (row + 1 < List_->Rows())
                GridNextRow();
            else
                FocusSelect(ebox(kRoute));
            break;
        case kColHi:
            if (!isDayOfMonth(tBox_->Text())) break;
            takeCell();
            LeaveCell(*List_, *tBox_);
            break;
        default:
            break;
    }
}

void SlipG_frm::takeCell() {
    List_->SetText(tBox_->Text());
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
