#include "masters/MstTanka_frm.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "dialogs/AskConfirm.h"
#include "dialogs/ShowAlert.h"
#include "masters/PriceList.h"
#include "output/EX.h"
#include "platform/forms/Notice.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/RuntimeError.h"
#include "store/FieldValue.h"
#include "store/dbAccess.h"
#include "toolkit/GridColumns.h"
#include "values/NumStr.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {

namespace {

enum Box { kPattern, kCapacity, kPrice };
enum Button { kClear, kDelete, kSave, kPrint, kExport };

constexpr int kColumns = 11;  // the capacities of the rows, and ten prices

}  // namespace

MstTanka_frm::MstTanka_frm()
    : EntryForm(u"MstTanka_frm"_s, u"価格表"_s), List_(&Named(new FlexGrid(this), u"List"_s)) {
    constexpr int kLabelWidth = 600;
    constexpr int kPriceWidth = 800;
    constexpr int kGridHeight = 420;
    List_->SetCols(kColumns);
    for (int column = 0; column < kColumns; ++column) {
        List_->SetColWidth(column, column == 0 ? kLabelWidth : kPriceWidth);
        List_->SetColAlignment(column, AlignRightCenter);
    }
    ReserveRoom(*List_, kGridHeight);

    auto* body = new QVBoxLayout(this);
    body->setSpacing(12);
    body->addLayout(layOutFields());
    body->addLayout(layOutButtons());
    body->addWidget(List_, 1);

    goRoundPast(ebox(kPattern));
    on(Opt, &OptionButton::Click, [this](int) { drawGrid(); });
}

QBoxLayout* MstTanka_frm::layOutFields() {
    FieldLayout fields(*this);
    const auto row = [&](const char16_t* caption, int index, int bytes, int shownBytes) {
        fields.row(QString::fromUtf16(caption)).text(addBox(index), bytes, shownBytes);
    };
    constexpr int kCapacityShown = 8;
    row(u"パターン", kPattern, kIntegerBytes, 0);
    row(u"容量", kCapacity, kCurrencyBytes, kCapacityShown);
    row(u"単価", kPrice, kCurrencyBytes, kCurrencyShown);

    auto* kinds = new QVBoxLayout;
    int index = 0;
    for (const CapacityKind& kind : kCapacityKinds)
        kinds->addWidget(&Opt.add(index++, new OptionButton(QString::fromUtf16(kind.name), this)));
    kinds->addStretch();

    constexpr int kBetween = 40;
    auto* line = new QHBoxLayout;
    line->addLayout(fields.layout());
    line->addSpacing(kBetween);
    line->addLayout(kinds);
    line->addStretch();
    return line;
}

QBoxLayout* MstTanka_frm::layOutButtons() {
    auto* line = new QHBoxLayout;
    line->setSpacing(8);
    addButtons(*line, {{kSave, u"保存"_s,
                        [this] {
                            if (!save()) return;
                            clear();
                            NoticeSaved();
                        },
                        Keeps},
                       {kClear, u"画面クリア"_s, [this] { clear(); }},
                       {kDelete, u"削除"_s, [this] { remove(); }, Removes}});
    line->addStretch();
    addButtons(*line,
               {{kPrint, u"印刷"_s, [this] { print(); }}, {kExport, u"Excel"_s, [this] { exportGrid(); }}});
    return line;
}

// ---- the pattern on the screen

void MstTanka_frm::init() {
    clear();
}

void MstTanka_frm::clear() {
    emptyFields();
    Opt(0).SetValue(true);
    drawGrid();
    FocusSelect(ebox(kPattern));
}

const CapacityKind& MstTanka_frm::kind() const {
    return kCapacityKinds[Opt(0).Value() ? 0 : 1];
}

QString MstTanka_frm::pattern() const {
    return NumStr(NumVal(ebox(kPattern).Text()));
}

void MstTanka_frm::drawGrid() {
    List_->SetRows(1);
    List_->SetRows(kind().gridRows);
    for (int column = 1; column < kColumns; ++column)
        List_->SetTextMatrix(0, column, QString::fromUtf16(kind().columnMark) + NumStr(column - 1));
    for (int row = 1; row < List_->Rows(); ++row)
        List_->SetTextMatrix(row, 0, NumStr((row - 1) * kind().rowStep));
}

bool MstTanka_frm::enter(int index) {
    if (index == kPrice) {
        takePrice();
        return false;
    }
    if (index == kPattern) load();
    return true;
}

void MstTanka_frm::load() {
    if (const CapacityKind* stored = StoredKind(pattern()))
        Opt(stored == &kCapacityKinds[0] ? 0 : 1).SetValue(true);
    drawGrid();
    Recordset rows = gDb->OpenRecordset(
        u"SELECT * FROM Tnk "
        " WHERE Ptn="_s +
        pattern() + u" ORDER BY Capa"_s);
    for (; !rows.Eof(); rows.MoveNext())
        put(MoneyOf(rows[u"Capa"_s]), MoneyOf(rows[u"Tanka"_s]));
}

void MstTanka_frm::put(Currency capacity, Currency price) {
    const CapacityPlace place = PlaceOf(kind().index(capacity));
    List_->SetTextMatrix(place.row + 1, place.column + 1, Format(price, u"###,###"_s));
}

void MstTanka_frm::takePrice() {
    const Currency capacity = ToCurrency(ebox(kCapacity).Text());
    // The price is taken all the same: the grid holds a little more than is kept, and past it is an error.
    if (!kind().accepts(capacity)) ShowAlert(u"数量が正しくありません。"_s);
    FocusSelect(ebox(kCapacity));
    put(capacity, ToCurrency(ebox(kPrice).Text()));
    const CapacityPlace place = PlaceOf(kind().index(capacity));
    List_->SetRow(place.row + 1);
    List_->SetCol(place.column + 1);  // and so it is seen
}

// ---- the pattern in the store

bool MstTanka_frm::save() {
    if (NumVal(ebox(kPattern).Text()) == 0.0) {
        ShowAlert(u"パターンが不正です。"_s);
        FocusSelect(ebox(kPattern));
        return false;
    }
    // Every price of the grid is offered, and the table's key turns away those it holds. So it is the
    // capacity in the box alone that changes.
    const QString capacity = ebox(kCapacity).Text();
    if (HasText(capacity)) {
        gDb->Execute(
            u"DELETE FROM Tnk "
            " WHERE Ptn ="_s +
            pattern() + u" AND   Capa="_s + capacity);
    }
    for (int i = 0; i < kind().indices; ++i) {
        const CapacityPlace place = PlaceOf(Currency(i));
        const Currency price = ToCurrency(List_->TextMatrix(place.row + 1, place.column + 1));
        if (price.IsZero()) continue;
        const QStringList values{pattern(), NumStr(kind().capacity(i)), NumStr(price), NumStr(kind().kubun)};
        gDb->Execute(u"INSERT INTO Tnk(Ptn,Capa,Tanka,Kubun) VALUES("_s + values.join(u',') + u")"_s);
    }
    return true;
}

void MstTanka_frm::remove() {
    if (!AskConfirm(u"この単価パターンを削除します。"_s, u"はい"_s, u"いいえ"_s)) return;
    gDb->Execute(
        u"DELETE FROM Tnk "
        " WHERE Ptn="_s +
        pattern());
    clear();
}

// ---- on paper

void MstTanka_frm::print() {
    if (!save()) return;
    try {
        PrintPriceList(pattern());
    } catch (const RuntimeError&) {
        // A cancelled printer dialog, and whatever else keeps the list from the paper, needs no word.
    }
    clear();
}

void MstTanka_frm::exportGrid() {
    if (List_->Rows() == 0) return;
    GridToExcel(u"単価表"_s, u"条件 : "_s + u"パターン : "_s + ebox(kPattern).Text(),
                QString::fromUtf16(kind().name), *List_);
}

}  // namespace akarix
