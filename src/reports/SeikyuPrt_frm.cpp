#include "reports/SeikyuPrt_frm.h"

#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <functional>
#include <vector>

#include "billing/Sub.h"
#include "output/EX.h"
#include "output/PrintRun.h"
#include "output/PrintTrap.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Format.h"
#include "reports/InvoiceScript.h"
#include "reports/InvoiceSheet.h"
#include "store/FieldValue.h"
#include "store/Lookup.h"
#include "store/Settings.h"
#include "store/dbAccess.h"
#include "toolkit/FilterTerms.h"
#include "toolkit/GridColumns.h"
#include "values/Dates.h"
#include "values/NumStr.h"
#include "values/NumVal.h"

namespace akarix {

namespace {

enum Field { kYear, kMonth, kIssued, kFrom, kTo, kRoute };
enum Picture { kPickFrom, kPickTo, kPickRoute };
enum InvoiceMode { kDrawn, kTemplate };

enum Column {
    kColMark,
    kColDeal,
    kColNamae,
    kColZenkaiGaku,
    kColNGaku,
    kColZenkaiMeter,
    kColKonkaiMeter,
    kColSuu,
    kColGGaku,
    kColUGaku,
    kColGaku,
    kColBill,
    kColCount
};

const GridColumns kColumns = {
    {u"請求", 600, AlignCenterCenter},
    {u"ｺｰﾄﾞ", 1000},
    {u"得意先", 1500, AlignLeftCenter},
    {u"前月残", 1200},
    {u"入金額", 1200},
    {u"前回検針値", 1200},
    {u"今回検針値", 1200},
    {u"使用量", 1200},
    {u"使用料", 1200},
    {u"物販", 1200},
    {u"当月売上", 1200},
    {u"請求額", 1200},
};

const QString kMark = u"○"_s;
const QString kYen = u"#,##0"_s;
const QString kMeter = u"#,##0.0"_s;

/// The amounts of the ledger and the columns that show them.
constexpr std::array<std::pair<Column, const char16_t*>, 5> kAmounts{{{kColZenkaiGaku, u"ZenkaiGaku"},
                                                                      {kColNGaku, u"NGaku"},
                                                                      {kColGGaku, u"GGaku"},
                                                                      {kColUGaku, u"UGaku"},
                                                                      {kColGaku, u"Gaku"}}};

/// A row's figures, or their sums, by column.
using Figures = std::array<Currency, kColCount>;

Figures ReadFigures(const InvoiceMonth& of, const Recordset& ledger) {
    Figures figures{};
    for (const auto& [column, source] : kAmounts)
        figures[column] = MoneyOf(ledger[QString::fromUtf16(source)]);
    const MonthMeter meter = ReadMonthMeter(of.deal, of.month);
    figures[kColZenkaiMeter] = meter.zenkaiMeter;
    figures[kColKonkaiMeter] = meter.konkaiMeter;
    figures[kColSuu] = meter.suu;
    figures[kColBill] = figures[kColGaku] + figures[kColZenkaiGaku] - figures[kColNGaku];
    return figures;
}

void WriteRow(FlexGrid& list, int row, std::int32_t deal, const Figures& figures) {
    const auto [name, noSeikyu] = GetNameAndNoSeikyu(deal);
    list.SetTextMatrix(row, kColDeal, NumStr(deal));
    list.SetTextMatrix(row, kColNamae, name);
    for (int column = kColZenkaiGaku; column < kColCount; ++column) {
        const bool metered = column == kColZenkaiMeter || column == kColKonkaiMeter || column == kColSuu;
        list.SetTextMatrix(row, column,
                           Format(figures[static_cast<std::size_t>(column)], metered ? kMeter : kYen));
    }
    // What is shown decides: less than half a yen is nothing to bill.
    const bool billed = NumVal(list.TextMatrix(row, kColBill)) != 0;
    list.SetTextMatrix(row, kColMark, noSeikyu != 1 && billed ? kMark : QString());
}

void WriteTotals(FlexGrid& list, int row, const Figures& sums) {
    list.SetTextMatrix(row, kColNamae, u"合計"_s);
    for (int column = kColZenkaiGaku; column < kColCount; ++column) {
        if (column == kColZenkaiMeter || column == kColKonkaiMeter) continue;
        list.SetTextMatrix(row, column, Format(sums[static_cast<std::size_t>(column)], kYen));
    }
}

}  // namespace

SeikyuPrt_frm::SeikyuPrt_frm() : EntryForm(u"SeikyuPrt_frm"_s, u"請求書発行"_s) {
    constexpr int kGridHeight = 420;
    constexpr int kDateBytes = 10;
    List_ = &Named(new FlexGrid(this), u"List"_s);
    SetColumns(*List_, kColumns);
    ReserveRoom(*List_, kGridHeight);
    on(List_, &FlexGrid::Click, [this] { clickMark(); });

    FieldLayout fields(*this);
    addMonth(fields.row(u"年月"_s), kYear, kMonth, u"月分"_s);
    fields.row(u"作成日"_s).text(addBox(kIssued), kDateBytes);
    addCode(fields.row(u"得意先"_s), kFrom, {kPickFrom, u"Deal"_s, u"sNamaeS"_s});
    addCode(fields.row(u"～"_s), kTo, {kPickTo, u"Deal"_s, u"sNamaeE"_s});
    addCode(fields.row(u"地区"_s), kRoute, {kPickRoute, u"Rte"_s, u"sRte"_s});

    auto* bar = new QHBoxLayout;
    const auto add = [&](const QString& caption, const QString& name, std::function<void()> press) {
        bar->addWidget(&Named(newButton(caption, std::move(press)), name));
    };
    add(u"印刷"_s, u"Btn"_s, [this] { TrapPrinting([this] { print(); }); });
    add(u"全ﾁｪｯｸ"_s, u"Command1"_s, [this] { markAll(kMark); });
    add(u"全消"_s, u"DelBtn"_s, [this] { markAll({}); });
    add(u"Excel"_s, u"ExcelBtn"_s, [this] { exportGrid(); });
    bar->addStretch();

    auto* body = new QVBoxLayout(this);
    body->addLayout(fields.layout());
    body->addLayout(bar);
    body->addWidget(List_, 1);
}

void SeikyuPrt_frm::init() {
    emptyFields();
    putMonth(kYear, kMonth, Today());
    ebox(kIssued).SetText(DateText(Today()));
    List_->SetRows(1);
    FocusSelect(ebox(kYear));
}

bool SeikyuPrt_frm::enter(int index) {
    if (index == kIssued) ebox(kIssued).SetText(DateText(issued()));
    if (index == kTo) build();
    return true;
}

Date SeikyuPrt_frm::issued() const {
    return ParseStrictDate(ebox(kIssued).Text());
}

QString SeikyuPrt_frm::typed(int field) const {
    return KeepNumeric(ebox(field).Text());
}

InvoiceMonth SeikyuPrt_frm::invoiceOf(std::int32_t deal) const {
    return {deal, {CInt(typed(kYear)), CInt(typed(kMonth))}};
}

// ---- the list

void SeikyuPrt_frm::build() {
    SetColumns(*List_, kColumns);
    Recordset set = gDb->OpenRecordset(
        u"SELECT TtoD.* FROM TtoD "
        " INNER JOIN Deal ON Deal.Code=TtoD.Deal "
        " WHERE Nendo ="_s +
        typed(kYear) + u" AND   Getudo="_s + typed(kMonth) +
        FilterTermsAsTyped(
            {{ebox(kRoute), u" AND Deal.Rte="}, {ebox(kFrom), u" AND Deal>="}, {ebox(kTo), u" AND Deal<="}}) +
        u" ORDER BY Deal.Rte,Deal.Haisou,Deal.Code"_s);
    Figures sums{};
    const int count = FillGrid(
        *List_, kColumns, set,
        [&](int row) {
            const InvoiceMonth invoice = invoiceOf(LongOf(set[u"Deal"_s]));
            const Figures figures = ReadFigures(invoice, set);
            WriteRow(*List_, row, invoice.deal, figures);
            std::transform(sums.begin(), sums.end(), figures.begin(), sums.begin(), std::plus());
        },
        1);
    if (count == 0) return;
    set.Close();
    WriteTotals(*List_, count + 1, sums);
    List_->Refresh();
}

// ---- the marks

void SeikyuPrt_frm::clickMark() {
    const int row = List_->MouseRow();
    if (List_->MouseCol() != kColMark || row < 1 || !isCustomer(row)) return;
    List_->SetTextMatrix(row, kColMark, isMarked(row) ? QString() : kMark);
}

void SeikyuPrt_frm::markAll(const QString& mark) {
    for (int row = 1; row < List_->Rows(); ++row)
        List_->SetTextMatrix(row, kColMark, mark);
}

bool SeikyuPrt_frm::isCustomer(int row) const {
    return NumVal(List_->TextMatrix(row, kColDeal)) > 0;
}

bool SeikyuPrt_frm::isMarked(int row) const {
    return List_->TextMatrix(row, kColMark) == kMark;
}

// ---- the issue

void SeikyuPrt_frm::print() {
    PrintRun run(u"請求書"_s);
    if (gInvoiceMode == kDrawn)
        issueDrawn(run);
    else if (gInvoiceMode == kTemplate)
        issueSheets(run);
}

/// By the range of codes alone, whatever the list shows.
void SeikyuPrt_frm::issueDrawn(PrintRun& run) {
    Recordset customers = gDb->OpenRecordset(u"SELECT * FROM Deal  WHERE Code>="_s + typed(kFrom) +
                                             u" AND   Code<="_s + typed(kTo) + u" ORDER BY Code"_s);
    const Date date = issued();
    if (customers.Eof()) return;
    customers.MoveLast();
    const int count = customers.RecordCount();
    customers.MoveFirst();
    for (int i = 0; i < count; ++i, customers.MoveNext()) {
        run.next(i, count);
        DrawInvoice(invoiceOf(LongOf(customers[u"Code"_s])), date);
    }
}

/// By the marks alone: a customer marked by hand gets an invoice even if the master says none.
void SeikyuPrt_frm::issueSheets(PrintRun& run) {
    std::vector<int> marked;
    for (int row = 1; row < List_->Rows(); ++row)
        if (isMarked(row) && isCustomer(row)) marked.push_back(row);
    if (marked.empty()) return;
    OpenInvoiceSheet();
    for (size_t i = 0; i < marked.size(); ++i) {
        List_->SetRow(marked[i]);  // a run that dies or is stopped shows by the present row at whom
        run.next(static_cast<int>(i), static_cast<int>(marked.size()));
        PrintInvoice(invoiceOf(ToLong(List_->TextMatrix(marked[i], kColDeal))));
    }
    ExcelClose();
}

void SeikyuPrt_frm::exportGrid() {
    if (List_->Rows() <= 1) return;
    const QString colon = u" : "_s;
    GridToExcel(
        u"請求書一覧"_s,
        ebox(kYear).Text() + u'/' + ebox(kMonth).Text() + u"分 ルート : "_s + ebox(kRoute).Text() + colon +
            nameOf(kRoute),
        ebox(kFrom).Text() + colon + nameOf(kFrom) + u" ～"_s + ebox(kTo).Text() + colon + nameOf(kTo),
        *List_);
}

}  // namespace akarix
