#include "reports/RepoSeikyu_frm.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "billing/Sub.h"
#include "output/PrintRun.h"
#include "output/PrintTrap.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Format.h"
#include "store/FieldValue.h"
#include "store/Lookup.h"
#include "store/dbAccess.h"
#include "toolkit/FilterTerms.h"
#include "toolkit/GridColumns.h"
#include "values/Dates.h"
#include "values/NumStr.h"
#include "values/NumVal.h"

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
    kColBill
};

const QString kYen = u"#,##0"_s;
const QString kYenOrNothing = u"#,###"_s;
const QString kMeter = u"#,##0.0"_s;

const GridColumns kColumns = {
    {u"ﾙｰﾄ", 600, AlignRightCenter, u"Rte", Number},
    {u"順路", 800, AlignRightCenter, u"Haisou", Number},
    {u"ｺｰﾄﾞ", 800, AlignRightCenter, u"Deal", Number},
    {u"得意先", 2400, AlignLeftCenter},
    {u"前月残", 1200, AlignRightCenter, u"ZenkaiGaku", Figure(kYen)},
    {u"前回検針値", 1200},
    {u"今回検針値", 1200},
    {u"使用量", 1000},
    {u"使用料", 1200, AlignRightCenter, u"GGaku", Figure(kYenOrNothing)},
    {u"物販", 1200, AlignRightCenter, u"UGaku", Figure(kYenOrNothing)},
    {u"当月売上", 1200, AlignRightCenter, u"Gaku", Figure(kYenOrNothing)},
    {u"入金", 1200, AlignRightCenter, u"NGaku", Figure(kYenOrNothing)},
    {u"請求額", 1200},
};

constexpr int kSheetRows = 58;
constexpr int kSheetFirstRow = 4;

bool IsLast(Recordset& set) {
    set.MoveNext();
    const bool last = set.Eof();
    set.MovePrevious();
    return last;
}

}  // namespace

RepoSeikyu_frm::RepoSeikyu_frm() : EntryForm(u"RepoSeikyu_frm"_s, u"請求一覧表"_s) {
    auto* body = new QVBoxLayout(this);
    FieldLayout fields(*this);
    addMonth(fields.row(u"年月"_s), kYear, kMonth, u"月分"_s);
    addCode(fields.row(u"得意先"_s), kFrom, {0, u"Deal"_s, u"sNamaeS"_s});
    addCode(fields.row(u"～"_s), kTo, {1, u"Deal"_s, u"sNamaeE"_s});
    addCode(fields.row(u"地区"_s), kRoute, {2, u"Rte"_s, u"sRte"_s});

    // Showing is what comes next after the last field, so its button leads the walk and the row.
    auto* buttons = new QHBoxLayout;
    addButtons(*buttons, {{kShow, u"表示"_s, [this] { show(); }},
                          {kPrint, u"印刷"_s, [this] { TrapPrinting([this] { print(); }); }},
                          {kExport, u"Excel"_s, [this] { exportGrid(); }}});
    buttons->addSpacing(16);
    ChkGaku_ = &Named(new CheckBox(u"金額を印刷しない"_s, this), u"ChkGaku"_s);
    buttons->addWidget(ChkGaku_);
    buttons->addStretch();

    List_ = &Named(new FlexGrid(this), u"List"_s);
    constexpr int kGridHeight = 420;
    SetColumns(*List_, kColumns);
    ReserveRoom(*List_, kGridHeight);

    body->addLayout(fields.layout());
    body->addLayout(buttons);
    body->addWidget(List_, 1);
}

void RepoSeikyu_frm::init() {
    emptyFields();
    ChkGaku_->SetValue(0);
    putMonth(kYear, kMonth, Today());
    List_->SetRows(1);
    FocusSelect(ebox(kYear));
}

bool RepoSeikyu_frm::enter(int index) {
    if (index != kRoute) return true;
    SetFocus(&Btn(kShow));
    return false;
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
    Sums sums;
    const auto put = [this](int row, int column, const QString& text) {
        List_->SetTextMatrix(row, column, text);
    };
    const auto putRest = [&](int row) {
        const std::int32_t deal = LongOf(set[u"Deal"_s]);
        const Currency zenkaiGaku = MoneyOf(set[u"ZenkaiGaku"_s]);
        const Currency gaku = MoneyOf(set[u"Gaku"_s]);
        const Currency nGaku = MoneyOf(set[u"NGaku"_s]);
        const auto [zenkaiMeter, konkaiMeter, suu] = ReadMonthMeter(deal, {CInt(year), CInt(month)});
        put(row, kColNamae, GetName(u"Deal"_s, deal));
        put(row, kColZenkaiMeter, Format(zenkaiMeter, kMeter));
        put(row, kColKonkaiMeter, Format(konkaiMeter, kMeter));
        put(row, kColSuu, Format(suu, kMeter));
        put(row, kColBill, Format(gaku + zenkaiGaku - nGaku, kYenOrNothing));
        sums.zenkaiGaku += zenkaiGaku;
        sums.suu += suu;
        sums.gGaku += MoneyOf(set[u"GGaku"_s]);
        sums.uGaku += MoneyOf(set[u"UGaku"_s]);
        sums.gaku += gaku;
        sums.nGaku += nGaku;
    };
    const int last = FillGrid(*List_, kColumns, set, putRest, 1) + 1;
    if (last == 1) return;
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
    GridToExcel(
        u"請求一覧"_s,
        ebox(kYear).Text() + u"/"_s + ebox(kMonth).Text() + u"分 "_s + u" ルート : "_s + ebox(kRoute).Text() +
            colon + nameOf(kRoute),
        ebox(kFrom).Text() + colon + nameOf(kFrom) + u" ～ "_s + ebox(kTo).Text() + colon + nameOf(kTo),
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
    // The sheet counts its years by one era, whatever the screens do.
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
    const auto [zenkaiMeter, konkaiMeter, suu] =
        ReadMonthMeter(deal, {CInt(KeepNumeric(ebox(kYear).Text())), CInt(KeepNumeric(ebox(kMonth).Text()))});
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
