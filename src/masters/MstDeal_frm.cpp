#include "masters/MstDeal_frm.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <array>

#include "dialogs/ShowAlert.h"
#include "output/PrintRun.h"
#include "output/PrintTrap.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Format.h"
#include "store/FieldValue.h"
#include "store/Lookup.h"
#include "store/dbAccess.h"
#include "toolkit/Lookups.h"
#include "values/NumStr.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {

namespace {

enum Field {
    kCode = 0,
    kNamae = 2,
    kRyaku = 3,
    kYubin = 4,
    kAddr1 = 5,
    kSime = 9,
    kHaisou = 14,
    kStn = 17,
    kFrom = 20,
    kTo = 21,
    kRoute = 22,
    kDiscGaku = 23
};
enum { kClear, kRemove, kSave, kPrint };

constexpr int kSheetRows = 59;  // 58 customers a page: the driver turns the page when it reaches this line
constexpr int kSheetFirstRow = 3;

MasterTexts Texts() {
    return {
        .table = u"Deal"_s,
        .load = u"SELECT * FROM Deal  WHERE Code=%1"_s,
        .left = u"SELECT * FROM Deal WHERE Code<%1 ORDER BY Code DESC"_s,
        .right = u"SELECT * FROM Deal WHERE Code>%1 ORDER BY Code"_s,
        .remove = u"DELETE FROM Deal  WHERE Code=%1"_s,
        .removeQuestion = u"この取引先を削除します。"_s,
    };
}

// Branch codes are shown with three digits; what is longer is a post office's code and stands as it is.
QString BranchText(const Variant& value) {
    const QString text = NullToEmpty(value);
    constexpr int kShort = 2;
    return text.isEmpty() || text.size() > kShort ? text : Format(text, u"000"_s);
}

MasterField Text(int index, const char16_t* label, const char16_t* column, int bytes, ImeMode ime) {
    return {.index = index,
            .label = QString::fromUtf16(label),
            .column = QString::fromUtf16(column),
            .bytes = bytes,
            .ime = ime};
}

MasterField Number(int index, const char16_t* label, const char16_t* column, FieldKind kind,
                   const char16_t* note = u"") {
    const auto bytes = [kind] {
        switch (kind) {
            case FieldKind::Long:
                return kLongBytes;
            case FieldKind::Integer:
                return kIntegerBytes;
            default:
                return kCurrencyBytes;
        }
    };
    return {.index = index,
            .label = QString::fromUtf16(label),
            .column = QString::fromUtf16(column),
            .kind = kind,
            .bytes = bytes(),
            .note = QString::fromUtf16(note)};
}

FieldTable Fields() {
    MasterField code = Number(kCode, u"コード", u"Code", FieldKind::Long);
    code.bytes = kLongKeyBytes;
    code.lookup = CodeLookup{};
    MasterField route = Number(kRoute, u"地区", u"Rte", FieldKind::Integer);
    route.lookup = CodeLookup{3, u"Rte"_s, u"sRte"_s};
    MasterField sime = Number(kSime, u"締日", u"Sime", FieldKind::Integer, u"末締めは 31 ");
    sime.newColumn = true;
    MasterField bank = Number(16, u"銀行", u"Bnk", FieldKind::Integer);
    bank.display = MaskedUnlessZero(u"0000"_s);
    MasterField branch = Number(kStn, u"支店", u"Stn", FieldKind::Integer, u"郵便局は2文字目から3文字");
    branch.display = BranchText;
    MasterField kind = Number(18, u"種類", u"Kind", FieldKind::Integer, u"1:普通 2：当座");
    kind.display = Masked(u"#"_s);
    MasterField account = Text(19, u"口座番号", u"Koza", 10, ImeMode::Off);
    MasterField fixedDebit = Number(kDiscGaku, u"毎月引落額", u"DiscGaku", FieldKind::Currency);
    fixedDebit.shownBytes = kCurrencyShown;
    fixedDebit.display = MaskedUnlessZero({});
    return {
        code,
        route,
        Text(1, u"ﾌﾘｶﾞﾅ", u"Kana", 30, ImeMode::KatakanaHalf),
        Text(kNamae, u"名前", u"Namae", 40, ImeMode::Hiragana),
        Text(kRyaku, u"略称", u"Ryaku", 20, ImeMode::Hiragana),
        Text(kYubin, u"〒", u"Yubin", 8, ImeMode::Off),
        Text(kAddr1, u"住所", u"Addr1", 50, ImeMode::Hiragana),
        Text(6, u"住所", u"Addr2", 50, ImeMode::Hiragana),
        Text(7, u"電話", u"TEL", 15, ImeMode::Off),
        Text(8, u"ファックス", u"Fax", 15, ImeMode::Off),
        sime,
        Number(10, u"支払方法", u"SH", FieldKind::Integer, u"1:集金  2:振込"),
        Number(11, u"地図", u"Map", FieldKind::Integer),
        Number(12, u"施設販売", u"Sisetu", FieldKind::Integer,
               u"0:不明 1:学校等 2:病院等\n3:公会堂等 4:料飲店等 5:その他\n6:共同住宅 7:一般住宅"),
        Number(13, u"締切", u"Simekiri", FieldKind::Integer),
        Number(kHaisou, u"順路", u"Haisou", FieldKind::Long),
        Number(15, u"単価ﾊﾟﾀｰﾝ", u"TankaPtn", FieldKind::Integer),
        bank,
        branch,
        kind,
        account,
        fixedDebit,
    };
}

}  // namespace

MstDeal_frm::MstDeal_frm()
    : MasterForm(u"MstDeal_frm"_s, u"取引先"_s, Texts()),
      defaultSime_(CInt(NumVal(GetContents(u"SELECT Contents FROM zSysFunc WHERE Code=1"_s)))) {
    addFields(Fields());
    addLeases();
    addListFields();
    addButtons();
    walkFields();
    on(&ebox(kHaisou), &TextBox::GotFocus, [this] { proposeHaisou(); });
}

// ---- layout

void MstDeal_frm::addLeases() {
    auto* line = new QHBoxLayout;
    const auto tick = [this, line](const char16_t* name, const char16_t* caption) {
        auto* box = &Named(new CheckBox(QString::fromUtf16(caption), this), QString::fromUtf16(name));
        line->addWidget(box);
        return box;
    };
    ChkACU_ = tick(u"ChkACU", u"ACUリース");
    ChkKeihou_ = tick(u"ChkKeihou", u"警報機リース");
    ChkNoSeikyu_ = tick(u"ChkNoSeikyu", u"請求書を発行しない");
    line->addStretch();
    BtnDiscGaku_ = &Named(new CommandButton(u"毎月引落額"_s, this), u"BtnDiscGaku"_s);
    line->addWidget(BtnDiscGaku_);
    body().addLayout(line);
}

void MstDeal_frm::addListFields() {
    auto* group = new QGroupBox(u"取引先一覧"_s, this);
    FieldLayout rows(*this);
    constexpr int kNameBytes = 24;
    addCode(rows.row(u"コード自"_s), kFrom, {1, u"Deal"_s, u"sNamaeS"_s, kNameBytes});
    addCode(rows.row(u"コード至"_s), kTo, {2, u"Deal"_s, u"sNamaeE"_s, kNameBytes});
    rows.nextColumn();
    searchBank_ = &Named(newBox(), u"eSearchBnk"_s);
    rows.row(u"銀行コード"_s)
        .text(*searchBank_, kIntegerBytes)
        .lookup(addLookup(
            4, [] { return PickCode(u"Bnk"_s); },
            [this](const QString& code) { searchBank_->SetText(code); }));
    rows.row({}).button(Btn.add(kPrint, newButton(u"印刷"_s, [this] { TrapPrinting([this] { print(); }); })));
    group->setLayout(rows.layout());
    body().addWidget(group);
}

// The row's own fields and its ticks lead to Save; the fields of the list are walked behind it.
void MstDeal_frm::walkFields() {
    std::vector<QWidget*> walk;
    for (const MasterField& field : Fields())
        walk.push_back(&ebox(field.index));
    walk.insert(walk.end(), {ChkACU_, ChkKeihou_, ChkNoSeikyu_});
    for (const int button : {kSave, kClear, kRemove})
        walk.push_back(&Btn(button));
    for (const QString& name : {u"cmdLeft"_s, u"cmdRight"_s})
        walk.push_back(findChild<CommandButton*>(name));
    walk.insert(walk.end(), {BtnDiscGaku_, &ebox(kFrom), &ebox(kTo), searchBank_, &Btn(kPrint)});
    orderWalk(walk);
}

// ---- the row

void MstDeal_frm::showDefaults() {
    for (CheckBox* tick : {ChkACU_, ChkKeihou_, ChkNoSeikyu_})
        tick->SetValue(0);
    if (defaultSime_ != 0) ebox(kSime).SetText(NumStr(defaultSime_));
}

bool MstDeal_frm::enter(int index) {
    switch (index) {
        case kRyaku:
            CopyIfEmpty(ebox(kNamae), ebox(kRyaku));
            break;
        case kYubin:
            fillAddress();
            break;
        case kDiscGaku:
            FitMaxLength(ebox(kDiscGaku));
            SetFocus(ChkACU_);  // ticks stand outside the walk of the fields
            return false;
        default:
            break;
    }
    return MasterForm::enter(index);
}

/// An address that stands there is kept.
void MstDeal_frm::fillAddress() {
    const QString address = AddressOfZip(ebox(kYubin).Text());
    if (!address.isEmpty() && !HasText(ebox(kAddr1).Text())) ebox(kAddr1).SetText(address);
}

void MstDeal_frm::showExtras(Recordset& row) {
    if (row[u"Stn"_s].IsNull()) ebox(kStn).SetText({});  // branch 000 is a branch
    ChkACU_->SetValue(IntegerOf(row[u"ACU"_s]));
    ChkKeihou_->SetValue(IntegerOf(row[u"Keihou"_s]));
    ChkNoSeikyu_->SetValue(IntegerOf(row[u"NoSeikyu"_s]));
}

void MstDeal_frm::storeExtras(Recordset& row) {
    row.Fields(u"ACU"_s) = ChkACU_->Value();
    row.Fields(u"Keihou"_s) = ChkKeihou_->Value();
    row.Fields(u"NoSeikyu"_s) = ChkNoSeikyu_->Value();
}

// The highest place of all routes, not of this one: a new customer goes to the end of whatever route he
// joins.
void MstDeal_frm::proposeHaisou() {
    TextBox& box = ebox(kHaisou);
    if (NumVal(box.Text()) != 0.0) return;
    box.SetText(NumStr(NextHaisou()));
    FocusSelect(box);
}

bool MstDeal_frm::mayAskToRemove() {
    return NumVal(ebox(kCode).Text()) != 0.0;
}

bool MstDeal_frm::mayRemove() {
    struct Dependent {
        const char16_t* sql;
        const char16_t* message;
    };
    constexpr std::array<Dependent, 3> kDependents{{
        {u"SELECT * FROM Dud WHERE Deal=", u"売上データが有ります。"},
        {u"SELECT * FROM Dgd WHERE Deal=", u"検針データが有ります。"},
        {u"SELECT * FROM Dny WHERE Deal=", u"入金データが有ります。"},
    }};
    for (const Dependent& dependent : kDependents) {
        if (gDb->OpenRecordset(QString::fromUtf16(dependent.sql) + codeText()).Eof()) continue;
        ShowAlert(QString::fromUtf16(dependent.message));
        return false;
    }
    return true;
}

// ---- the list

void MstDeal_frm::print() {
    const PrintRun run(u"取引先一覧"_s);
    // One box gives both bounds: a code lists that customer alone. The second box only shows its name.
    const QString code = NumStr(NumVal(ebox(kFrom).Text()));
    const double bank = NumVal(searchBank_->Text());
    listsBank_ = bank >= 1;
    QString sql =
        u"SELECT * FROM Deal "
        " WHERE Code>0"_s;
    if (listsBank_) sql += u" AND Bnk="_s + NumStr(bank);
    if (code != u"0"_s) sql += u" AND Code>="_s + code + u" AND Code<="_s + code;
    sql += u" ORDER BY Rte,Haisou,Code"_s;
    Recordset set = gDb->OpenRecordset(sql);
    if (set.Eof()) return;
    ExcelOpenPaged(u"取引先一覧"_s, kSheetRows, kSheetFirstRow);
    SetReport(this, std::move(set));
    ExcelRunPaged();
}

void MstDeal_frm::ClrDetail() {
    ExcelCell(u"A4:G61"_s, {});
}

void MstDeal_frm::PrintOutHead(int /*page*/) {
    if (!listsBank_) return;
    ExcelCell(u"F3"_s, u"銀行-支店"_s);
    ExcelCell(u"G3"_s, u"口座番号"_s);
}

void MstDeal_frm::PrintOutDetail(int row, Recordset& set) {
    const auto read = [&set](const char16_t* column) { return NullToEmpty(set[QString::fromUtf16(column)]); };
    const auto put = [row](char16_t column, const QString& value) {
        ExcelCell(QChar(column) + NumStr(row), value);
    };
    put(u'A', read(u"Code"));
    put(u'B', read(u"Kana"));
    put(u'C', read(u"Namae"));
    put(u'D', read(u"Yubin"));
    put(u'E', read(u"Addr1") + read(u"Addr2"));
    if (!listsBank_) {
        put(u'F', read(u"TEL"));
        put(u'G', read(u"Fax"));
        return;
    }
    put(u'F',
        Format(IntegerOf(set[u"Bnk"_s]), u"0000"_s) + u"-"_s + Format(IntegerOf(set[u"Stn"_s]), u"000"_s));
    put(u'G', Format(read(u"Koza"), u"0000000"_s));
}

}  // namespace akarix
