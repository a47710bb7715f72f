#include "masters/GTanka_frm.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "output/EX.h"
#include "platform/forms/Choice.h"
#include "platform/forms/Notice.h"
#include "platform/runtime/Conversion.h"
#include "store/dbAccess.h"
#include "toolkit/Dentaku_frm.h"
#include "toolkit/GridColumns.h"
#include "values/NumStr.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {

namespace {

enum Field { kPattern, kSt, kEd, kKihon, kTanka };
enum Button { kAdd, kShow, kSave, kClear, kShowAll, kExport, kEmptyTable };
enum Column { kColMark, kColSt, kColEd, kColKihon, kColTanka, kColShow };

const GridColumns kBandColumns = {
    {u"削除", 500, AlignCenterCenter}, {u"開始", 500}, {u"終了", 500}, {u"基本料", 1000}, {u"単価", 800},
    {u"実行", 600, AlignCenterCenter},
};

const QString kKeep = u"○"_s;
const QString kDelete = u"×"_s;

constexpr int kSpacing = 10;
constexpr int kScrollBar = 24;
constexpr int kUsageWidth = 600;
constexpr int kPriceWidth = 800;

TariffBand BandFrom(const QString& st, const QString& ed, const QString& kihon, const QString& tanka) {
    return {CInt(KeepNumeric(st)), CInt(KeepNumeric(ed)), CCur(KeepNumeric(kihon)), CCur(KeepNumeric(tanka))};
}

}  // namespace

GTanka_frm::GTanka_frm() : EntryForm(u"GTanka_frm"_s, u"価格表"_s) {
    Btn = ControlArray<CommandButton>(u"Command"_s);
    auto* body = new QHBoxLayout(this);
    constexpr int kBetweenHalves = 20;
    body->setSpacing(kBetweenHalves);
    body->addLayout(layOutBands());
    body->addLayout(layOutTable(), 1);
    walkFields();
    on(ListK_, &FlexGrid::Click, [this] { clickBand(); });
}

// ---- layout

QVBoxLayout* GTanka_frm::layOutBands() {
    struct Line {
        const char16_t* caption;
        int bytes;
        int shownBytes = 0;
    };
    constexpr std::array<Line, 5> kLines{{{u"パターン", kIntegerBytes},
                                          {u"開始使用量", kIntegerBytes},
                                          {u"～終了使用量", kIntegerBytes},
                                          {u"基本料", kCurrencyBytes, kCurrencyShown},
                                          {u"単価", kCurrencyBytes, kCurrencyShown}}};
    const auto walker = [this](const char16_t* caption, const char16_t* name, const QString& condition) {
        constexpr int kWidth = 40;
        auto* button = &Named(newButton(QString::fromUtf16(caption), [=, this] { walk(condition); }),
                              QString::fromUtf16(name));
        button->setFixedWidth(kWidth);
        return button;
    };
    cmdLeft_ = walker(u"←", u"cmdLeft", u" WHERE Ptn<%1 ORDER BY Ptn DESC"_s);
    cmdRight_ = walker(u"→", u"cmdRight", u" WHERE Ptn>%1 ORDER BY Ptn"_s);
    FieldLayout fields(*this);
    for (std::size_t i = 0; i < kLines.size(); ++i) {
        const int index = static_cast<int>(i);
        FieldLine line = fields.row(QString::fromUtf16(kLines[i].caption));
        line.text(addBox(index), kLines[i].bytes, kLines[i].shownBytes);
        if (index == kPattern) line.widget(cmdLeft_).widget(cmdRight_);
    }
    const auto row = [this](std::initializer_list<BarButton> buttons) {
        auto* line = new QHBoxLayout;
        line->setSpacing(kSpacing);
        addButtons(*line, buttons);
        return line;
    };
    QHBoxLayout* bandButtons = row(
        {{kAdd, u"追加"_s, [this] { addBand(); }}, {kShow, u"表示"_s, [this] { showBand(typedBand()); }}});
    Command1_ = &Named(newButton(u"電卓"_s, [] { OpenScreen<Dentaku_frm>(); }), u"Command1"_s);
    bandButtons->addWidget(Command1_);

    ListK_ = &Named(new FlexGrid(this), u"ListK"_s);
    SetColumns(*ListK_, kBandColumns);
    ReserveRoom(*ListK_, 0);
    ListK_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);

    auto* bands = new QVBoxLayout;
    bands->setSpacing(kSpacing);
    bands->addLayout(fields.layout());
    bands->addLayout(bandButtons);
    bands->addWidget(ListK_, 1);
    bands->addLayout(
        row({{kSave, u"保存"_s, [this] { save(); }, Keeps}, {kClear, u"クリア"_s, [this] { clear(); }}}));
    return bands;
}

QVBoxLayout* GTanka_frm::layOutTable() {
    Check1_ = &Named(new CheckBox(u"追加表示"_s, this), u"Check1"_s);
    Check2_ = &Named(new CheckBox(u"整数部のみ表示"_s, this), u"Check2"_s);
    auto* line = new QHBoxLayout;
    line->setSpacing(kSpacing);
    line->addWidget(Check1_);
    line->addWidget(Check2_);
    line->addStretch();
    addButtons(*line, {{kShowAll, u"全表示"_s, [this] { showAllBands(); }},
                       {kExport, u"Excel"_s, [this] { exportTable(); }},
                       {kEmptyTable, u"クリア"_s, [this] {
                            emptyTable();
                            Check1_->SetValue(0);
                        }}});

    List_ = &Named(new FlexGrid(this), u"List"_s);
    List_->SetFixedRows(1);
    constexpr int kHeight = 420;
    List_->SetRoom({Twips(kUsageWidth) + PriceTable::kPrices * Twips(kPriceWidth) + kScrollBar, kHeight});

    auto* table = new QVBoxLayout;
    table->setSpacing(kSpacing);
    table->addLayout(line);
    table->addWidget(List_, 1);
    return table;
}

// The four fields of a band lead to 追加; what is done to the whole pattern comes behind it.
void GTanka_frm::walkFields() {
    std::vector<QWidget*> walk;
    for (const auto& [index, box] : ebox)
        walk.push_back(box);
    for (const Button button : {kAdd, kSave, kShow, kShowAll, kExport, kEmptyTable, kClear})
        walk.push_back(&Btn(button));
    walk.insert(walk.end(), {cmdLeft_, cmdRight_, Command1_, Check1_, Check2_});
    orderWalk(walk);
    goRoundPast(ebox(kPattern));
}

bool GTanka_frm::enter(int index) {
    if (index == kPattern) load();
    return true;
}

// ---- the pattern

void GTanka_frm::init() {
    List_->SetCols(PriceTable::kPrices + 1);
    for (int column = 0; column < List_->Cols(); ++column) {
        List_->SetColWidth(column, column == 0 ? kUsageWidth : kPriceWidth);
        List_->SetColAlignment(column, AlignRightCenter);
    }
    clear();
}

void GTanka_frm::clear() {
    emptyFields();
    Check1_->SetValue(0);
    Check2_->SetValue(0);
    ListK_->SetRows(1);
    emptyTable();
    Recordset highest = gDb->OpenRecordset(u"SELECT MAX(Ptn) AS tCode FROM Gaskeisan"_s);
    ebox(kPattern).SetText(NumStr(CLng(NullToZero(highest[u"tCode"_s])) + 1));
    FocusSelect(ebox(kPattern));
}

QString GTanka_frm::pattern() const {
    return NumStr(NumVal(ebox(kPattern).Text()));
}

void GTanka_frm::load() {
    ListK_->SetRows(1);
    Recordset bands = gDb->OpenRecordset(
        u"SELECT * FROM GasKeisan"
        " WHERE Ptn="_s +
        pattern() + u" ORDER BY St,Ed"_s);
    for (; !bands.Eof(); bands.MoveNext()) {
        const auto text = [&bands](const char16_t* column) {
            return NumStr(NullToZero(bands[QString::fromUtf16(column)]));
        };
        putBand({text(u"St"), text(u"Ed"), text(u"Kihon"), text(u"Tanka")});
    }
}

void GTanka_frm::walk(const QString& condition) {
    Recordset next = gDb->OpenRecordset(u"SELECT * FROM Gaskeisan"_s + condition.arg(pattern()));
    if (next.Eof()) return clear();
    ebox(kPattern).SetText(NumStr(next[u"Ptn"_s]));
    load();
}

void GTanka_frm::putBand(const std::array<QString, 4>& texts) {
    const int row = AddRow(*ListK_);
    ListK_->SetTextMatrix(row, kColMark, kKeep);
    for (int i = 0; i < 4; ++i)
        ListK_->SetTextMatrix(row, kColSt + i, texts[static_cast<std::size_t>(i)]);
    ListK_->SetTextMatrix(row, kColShow, u"表示"_s);
}

void GTanka_frm::addBand() {
    putBand({ebox(kSt).Text(), ebox(kEd).Text(), ebox(kKihon).Text(), ebox(kTanka).Text()});
    FocusSelect(ebox(kSt));  // a tariff is typed band by band
}

void GTanka_frm::clickBand() {
    const int row = ListK_->MouseRow();
    if (row < 1) return;
    const QString mark = ListK_->TextMatrix(row, kColMark);
    const int column = ListK_->MouseCol();
    switch (column) {
        case kColMark:
            ListK_->SetTextMatrix(row, kColMark, mark == kKeep ? kDelete : kKeep);
            break;
        case kColShow:
            if (mark == kKeep) showBand(bandOf(row));
            break;
        default:
            for (int field = kSt; field <= kTanka; ++field)
                ebox(field).SetText(ListK_->TextMatrix(row, kColSt + field - kSt));
            break;
    }
}

void GTanka_frm::save() {
    if (ListK_->Rows() <= 1 || NumVal(ebox(kPattern).Text()) == 0.0) return;
    const auto where = [this](const QString& st, const QString& ed) {
        return u" WHERE Ptn="_s + pattern() + u" AND St="_s + st + u" AND Ed="_s + ed;
    };
    for (int row = 1; row < ListK_->Rows(); ++row) {
        if (ListK_->TextMatrix(row, kColMark) == kDelete) {
            gDb->Execute(u"DELETE * FROM GasKeisan"_s + where(KeepNumeric(ListK_->TextMatrix(row, kColSt)),
                                                              KeepNumeric(ListK_->TextMatrix(row, kColEd))));
            continue;
        }
        const TariffBand band = bandOf(row);
        Recordset stored =
            gDb->OpenRecordset(u"SELECT * FROM GasKeisan"_s + where(NumStr(band.st), NumStr(band.ed)));
        if (stored.Eof()) {
            stored.AddNew();
            stored.Fields(u"Ptn"_s) = CInt(NumVal(ebox(kPattern).Text()));
            stored.Fields(u"St"_s) = band.st;
            stored.Fields(u"Ed"_s) = band.ed;
        } else {
            stored.Edit();
        }
        stored.Fields(u"Kihon"_s) = band.kihon;
        stored.Fields(u"Tanka"_s) = band.tanka;
        stored.Update();
    }
    clear();
    NoticeSaved();
}

// ---- the price table

TariffBand GTanka_frm::typedBand() const {
    return BandFrom(ebox(kSt).Text(), ebox(kEd).Text(), ebox(kKihon).Text(), ebox(kTanka).Text());
}

TariffBand GTanka_frm::bandOf(int row) const {
    return BandFrom(ListK_->TextMatrix(row, kColSt), ListK_->TextMatrix(row, kColEd),
                    ListK_->TextMatrix(row, kColKihon), ListK_->TextMatrix(row, kColTanka));
}

void GTanka_frm::showBand(const TariffBand& band) {
    addToTable(band);
    paintTable();
}

void GTanka_frm::showAllBands() {
    Check1_->SetValue(1);
    if (Check2_->Value() == 0) table_.Clear();
    for (int row = 1; row < ListK_->Rows(); ++row)
        if (ListK_->TextMatrix(row, kColMark) == kKeep) addToTable(bandOf(row));
    paintTable();
}

// A table of whole units is made to run on from band to band; one of tenths shows the last band alone, unless
// the operator asks for more.
void GTanka_frm::addToTable(const TariffBand& band) {
    if (Check2_->Value() == 1) {
        table_.AddWhole(band);
        return;
    }
    if (Check1_->Value() == 0) table_.Clear();
    table_.AddTenths(band);
}

void GTanka_frm::emptyTable() {
    table_.Clear();
    paintTable();
}

void GTanka_frm::paintTable() {
    const auto put = [this](int row, const PriceTable::Row& texts) {
        for (int column = 0; column < List_->Cols(); ++column)
            List_->SetTextMatrix(row, column, texts[static_cast<std::size_t>(column)]);
    };
    List_->SetRows(static_cast<int>(table_.Rows().size()) + 1);
    put(0, PriceTable::Heads(Check2_->Value() == 1));
    int row = 1;
    for (const PriceTable::Row& texts : table_.Rows())
        put(row++, texts);
    List_->Refresh();
}

void GTanka_frm::exportTable() {
    if (List_->Rows() <= 1) return;
    GridToExcel(u"ガス料金表"_s, u"パターン : "_s + ebox(kPattern).Text(), {}, *List_);
}

}  // namespace akarix
