#include "reports/RepoSeikyu_frm.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <array>

#include "billing/Sub.h"
#include "output/PrintRun.h"
#include "output/PrintTrap.h"
#include "platform/forms/FieldLayout.h"
#include "platform/forms/GridHead.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Literals.h"
#include "store/FieldValue.h"
#include "store/Lookup.h"
#include "store/dbAccess.h"
#include "toolkit/FieldBytes.h"
#include "toolkit/FieldWalk.h"
#include "toolkit/FilterTerms.h"
#include "values/NumStr.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {

namespace {

enum Field { kYear, kMonth, kFrom, kTo, kRoute };
enum Button { kPrint, kShow, kExport };

enum Column {
    kColRte,
    kColHaisou,
    kColDeal,
    kColNamae,
    kColZenkaiGaku,
    kColZenkaiMeter,
    kColKonkaiMeter,
    kColSuu,
    kColGGaku,
    kColUGaku,
    kColGaku,
    kColNGaku,
    kColBill,
    kColumns
};

constexpr std::array<GridHead, kColumns> kHeads{{
    {u"ﾙｰﾄ", 600},
    {u"順路", 800},
    {u"ｺｰﾄﾞ", 800},
    {u"得意先", 2400, AlignLeftCenter},
    {u"前月残", 1200},
    {u"前回検針値", 1200},
    {u"今回検針値", 1200},
    {u"使用量", 1000},
    {u"使用料", 1200},
    {u"物販", 1200},
    {u"当月売上", 1200},
    {u"入金", 1200},
    {u"請求額", 1200},
}};

const QString kYen = u"#,##0"_s;
const QString kYenOrNothing = u"#,###"_s;
const QString kMeter = u"#,##0.0"_s;

constexpr int kSheetRows = 58;
constexpr int kSheetFirstRow = 4;
constexpr int kEraBase = 1988;  // the sheet counts its years by one era, whatever the screens do

bool IsLast(Recordset& set) {
    set.MoveNext();
    const bool last = set.Eof();
    set.MovePrevious();
    return last;
}

}  // namespace

RepoSeikyu_frm::RepoSeikyu_frm() : EntryForm(u"RepoSeikyu_frm"_s, u"請求一覧表"_s) {
    layOut();
    const PressEnter press = wireKeys(ebox, [this](int index) { return enter(index); });
    wireLookup(F6(0), u"Deal"_s, {}, ebox(kFrom), press, kFrom);
    wireLookup(F6(1), u"Deal"_s, {}, ebox(kTo), press, kTo);
    wireLookup(F6(2), u"Rte"_s, u"ALL"_s, ebox(kRoute), press, kRoute);
    on(
        &Btn(kPrint), &CommandButton::Click, [this] { TrapPrinting([this] { print(); }); });
    on(
        &Btn(kShow), &CommandButton::Click, [this] { show(); });
    on(&Btn(kExport), &CommandButton::Click, [this] { exportGrid(); });
}

void RepoSeikyu_frm::layOut() {
    constexpr int kNameBytes = 30;
    auto* body = new QVBoxLayout(this);
    FieldLayout fields(*this);
    fields.row(u"年月"_s)
        .text(addBox(ebox, kYear, ImeMode::Off), 4)
        .note(u"年"_s)
        .text(addBox(ebox, kMonth, ImeMode::Off), 2)
        .note(u"月分"_s);
    const auto coded = [&](const char16_t* caption, int field, int picture, const char16_t* name) {
        auto* label = &Named(new Label({}, this), QString::fromUtf16(name));
        fields.row(QString::fromUtf16(caption))
            .text(addBox(ebox, field, ImeMode::Off), kLongKeyBytes)
            .lookup(F6.add(picture, new Image))
            .name(*label, kNameBytes);
        return label;
    };
    sNamaeS_ = coded(u"得意先", kFrom, 0, u"sNamaeS");
    sNamaeE_ = coded(u"～", kTo, 1, u"sNamaeE");
    sRte_ = coded(u"地区", kRoute, 2, u"sRte");

    // Showing is what comes next after the last field, so its button leads the walk and the row.
    auto* buttons = new QHBoxLayout;
    constexpr std::array<std::pair<Button, const char16_t*>, 3> kButtons{
        {{kShow, u"表示"}, {kPrint, u"印刷"}, {kExport, u"Excel"}}};
    for (const auto& [index, caption] : kButtons) {
        CommandButton& button = Btn.add(index, new CommandButton(QString::fromUtf16(caption)));
        JoinWalk(*this, button);
        buttons->addWidget(&button);
    }
    buttons->addSpacing(16);
    ChkGaku_ = &Named(new CheckBox(u"金額を印刷しない"_s, this), u"ChkGaku"_s);
    buttons->addWidget(ChkGaku_);
    buttons->addStretch();

    List_ = &Named(new FlexGrid(this), u"List"_s);
    constexpr int kGridHeight = 420;
    SetHeads(*List_, kHeads);
    ReserveRoom(*List_, kGridHeight);

    body->addLayout(fields.layout());
    body->addLayout(buttons);
    body->addWidget(List_, 1);
}

void RepoSeikyu_frm::init() {
    ClearControls(*this);
    for (Label* name : {sNamaeS_, sNamaeE_, sRte_})
        name->SetCaption({});
    ChkGaku_->SetValue(0);
    ebox(kYear).SetText(NumStr(Year(Today())));
    ebox(kMonth).SetText(NumStr(Month(Today())));
    List_->SetRows(1);
    FocusSelect(ebox(kYear));
}

bool RepoSeikyu_frm::enter(int index) {
    switch (index) {
        case kFrom:
            sNamaeS_->SetCaption(GetDealName(NumVal(ebox(kFrom).Text())));
            return true;
        case kTo:
            sNamaeE_->SetCaption(GetDealName(NumVal(ebox(kTo).Text())));
            return true;
        case kRoute:
            sRte_->SetCaption(GetName(u"Rte"_s, NumVal(ebox(kRoute).Text())));
            SetFocus(&Btn(kShow));
            return false;
        default:
            return true;
    }
}

QString RepoSeikyu_frm::filter() const {
    return FilterTermsAsTyped(
        {{ebox(kFrom), u" AND Deal>="}, {ebox(kTo), u" AND Deal<="}, {ebox(kRoute), u" AND Deal.Rte="}});
}

// ---- on the screen

void RepoSeikyu_frm::show() {
    const QString year = KeepNumeric(ebox(kYear).Text());
    const QString month = KeepNumeric(ebox(kMonth).Text());
    List_->SetRows(1);
    Recordset set = gDb->OpenRecordset(
        u"SELECT TtoD.*, Deal.Rte,Deal.Haisou FROM TtoD "
        " INNER JOIN Deal ON TtoD.Deal=Deal.Code "
        " WHERE Nendo ="_s +
        year + u" AND   Getudo="_s + month + filter() + u" ORDER BY Deal.Rte,Deal.Haisou,Deal.Code"_s);
    if (set.Eof()) return;
    set.MoveLast();
    const int count = CInt(set.RecordCount());
    set.MoveFirst();

    List_->SetRows(count + 2);
    Sums sums;
    const auto put = [this](int row, int column, const QString& text) {
        List_->SetTextMatrix(row, column, text);
    };
    for (int row = 1; row <= count; ++row, set.MoveNext()) {
        const std::int32_t deal = LongOf(set[u"Deal"_s]);
        const Currency zenkaiGaku = MoneyOf(set[u"ZenkaiGaku"_s]);
        const Currency gGaku = MoneyOf(set[u"GGaku"_s]);
        const Currency uGaku = MoneyOf(set[u"UGaku"_s]);
        const Currency gaku = MoneyOf(set[u"Gaku"_s]);
        const Currency nGaku = MoneyOf(set[u"NGaku"_s]);
        Currency zenkaiMeter;
        Currency konkaiMeter;
        Currency suu;
        ReadMonthMeter(deal, CInt(year), CInt(month), zenkaiMeter, konkaiMeter, suu);
        put(row, kColRte, NumStr(NullToZero(set[u"Rte"_s])));
        put(row, kColHaisou, NumStr(NullToZero(set[u"Haisou"_s])));
        put(row, kColDeal, NumStr(deal));
        put(row, kColNamae, GetName(u"Deal"_s, deal));
        put(row, kColZenkaiGaku, Format(zenkaiGaku, kYen));
        put(row, kColZenkaiMeter, Format(zenkaiMeter, kMeter));
        put(row, kColKonkaiMeter, Format(konkaiMeter, kMeter));
        put(row, kColSuu, Format(suu, kMeter));
        put(row, kColGGaku, Format(gGaku, kYenOrNothing));
        put(row, kColUGaku, Format(uGaku, kYenOrNothing));
        put(row, kColGaku, Format(gaku, kYenOrNothing));
        put(row, kColNGaku, Format(nGaku, kYenOrNothing));
        put(row, kColBill, Format(gaku + zenkaiGaku - nGaku, kYenOrNothing));
        sums.zenkaiGaku += zenkaiGaku;
        sums.suu += suu;
        sums.gGaku += gGaku;
        sums.uGaku += uGaku;
        sums.gaku += gaku;
        sums.nGaku += nGaku;
    }
    const int last = count + 1;
    put(last, kColNamae, u"合計"_s);
    put(last, kColZenkaiGaku, Format(sums.zenkaiGaku, kYen));
    put(last, kColSuu, Format(sums.suu, kMeter));
    put(last, kColGGaku, Format(sums.gGaku, kYen));
    put(last, kColUGaku, Format(sums.uGaku, kYen));
    put(last, kColGaku, Format(sums.gaku, kYen));
    put(last, kColNGaku, Format(sums.nGaku, kYen));
    put(last, kColBill, Format(sums.gaku + sums.zenkaiGaku - sums.nGaku, kYen));
    List_->Refresh();
}

void RepoSeikyu_frm::exportGrid() {
    const QString colon = u" : "_s;
    GridToExcel(u"請求一覧"_s,
                ebox(kYear).Text() + u"/"_s + ebox(kMonth).Text() + u"分 "_s + u" ルート : "_s +
                    ebox(kRoute).Text() + colon + sRte_->Caption(),
                ebox(kFrom).Text() + colon + sNamaeS_->Caption() + u" ～ "_s + ebox(kTo).Text() + colon +
                    sNamaeE_->Caption(),
                *List_);
}

// ---- on paper

void RepoSeikyu_frm::print() {
    const PrintRun run(u"請求一覧表"_s);
    Recordset set = gDb->OpenRecordset(
        u"SELECT TtoD.* FROM TtoD "
        " INNER JOIN Deal ON TtoD.Deal=Deal.Code "
        " WHERE Nendo= "_s +
        KeepNumeric(ebox(kYear).Text()) + u" AND   Getudo="_s + KeepNumeric(ebox(kMonth).Text()) + filter() +
        u" ORDER BY Deal.Rte,Deal.Haisou,Deal.Code"_s);
    if (set.Eof()) return;
    printed_ = {};
    ExcelOpenPaged(u"請求一覧表"_s, kSheetRows, kSheetFirstRow);
    SetReport(this, std::move(set));
    ExcelRunPaged();
}

void RepoSeikyu_frm::ClrDetail() {
    ExcelCell(u"B5:K61"_s, {});
}

void RepoSeikyu_frm::PrintOutHead(int /*page*/) {
    const int year = CInt(KeepNumeric(ebox(kYear).Text()));
    ExcelCell(u"F2"_s,
              u"平成"_s + NumStr(year - kEraBase) + u"年"_s + KeepNumeric(ebox(kMonth).Text()) + u"月"_s);
}

void RepoSeikyu_frm::PrintOutDetail(int row, Recordset& set) {
    printRow(row, set);
    // A page that the last customer fills goes out before the total is asked for; the total belongs on it.
    if (row == kSheetFirstRow + kSheetRows - 1 && IsLast(set)) printTotal();
}

void RepoSeikyu_frm::PrintOutDetailGokei(int /*line*/, int /*firstRow*/, int /*page*/) {
    printTotal();
}

void RepoSeikyu_frm::printRow(int row, const Recordset& set) {
    const std::int32_t deal = LongOf(set[u"Deal"_s]);
    Currency zenkaiMeter;
    Currency konkaiMeter;
    Currency suu;
    ReadMonthMeter(deal, CInt(KeepNumeric(ebox(kYear).Text())), CInt(KeepNumeric(ebox(kMonth).Text())),
                   zenkaiMeter, konkaiMeter, suu);
    const auto put = [row](char16_t column, const QString& text) {
        ExcelCell(QChar(column) + NumStr(row), text);
    };
    put(u'B', NumStr(deal));
    put(u'C', GetName(u"Deal"_s, deal));
    put(u'D', NumStr(zenkaiMeter));
    put(u'E', NumStr(konkaiMeter));
    put(u'F', NumStr(suu));
    printed_.suu += suu;
    if (!withAmounts()) return;

    const Currency gGaku = MoneyOf(set[u"GGaku"_s]);
    const Currency uGaku = MoneyOf(set[u"UGaku"_s]);
    const Currency gaku = MoneyOf(set[u"Gaku"_s]);
    const Currency zenkaiGaku = MoneyOf(set[u"ZenkaiGaku"_s]);
    put(u'G', NumStr(gGaku));
    put(u'H', NumStr(uGaku));
    put(u'I', NumStr(gaku));
    put(u'J', NumStr(zenkaiGaku));
    put(u'K', NumStr(gaku + zenkaiGaku));
    printed_.gGaku += gGaku;
    printed_.uGaku += uGaku;
    printed_.gaku += gaku;
    printed_.zenkaiGaku += zenkaiGaku;
}

void RepoSeikyu_frm::printTotal() {
    ExcelCell(u"F63"_s, NumStr(printed_.suu));
    if (withAmounts()) {
        ExcelCell(u"G63"_s, NumStr(printed_.gGaku));
        ExcelCell(u"H63"_s, NumStr(printed_.uGaku));
        ExcelCell(u"I63"_s, NumStr(printed_.gaku));
        ExcelCell(u"J63"_s, NumStr(printed_.zenkaiGaku));
        ExcelCell(u"K63"_s, NumStr(printed_.gaku + printed_.zenkaiGaku));
        return;
    }
    for (const char16_t column : {u'G', u'H', u'I', u'J', u'K'}) {
        ExcelCell(QChar(column) + u"62"_s, {});
        ExcelCell(QChar(column) + u"63"_s, {});
    }
}

}  // namespace akarix
