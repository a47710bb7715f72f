#include "entry/Slip_frm.h"

#include <QVBoxLayout>

#include "dialogs/AskConfirm.h"
#include "dialogs/ShowAlert.h"
#include "platform/forms/Notice.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Text.h"
#include "store/FieldValue.h"
#include "store/Lookup.h"
#include "store/dbAccess.h"
#include "toolkit/DisplayRule.h"
#include "toolkit/Lookups.h"
#include "values/Dates.h"
#include "values/NumStr.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {

namespace {

enum Box { kNumber, kDate, kDeal };
enum Picture { kPickSlip, kPickDeal, kPickItem };
enum Button { kClear, kDelete, kSave };

struct LineBoxes {
    int code;
    int name;
    int suu;
    int tanka;
    int gaku;
};

constexpr LineBoxes BoxesOf(int line) {
    return {3 + 3 * line, 4 + 3 * line, 21 + line, 27 + line, 5 + 3 * line};
}

constexpr int kNameBytes = 40;

QString Yen(Currency amount) {
    return Format(amount, u"###,###"_s);
}

DocumentTexts Texts() {
    return {.highest = u"SELECT MAX(Dno) AS tDno FROM Dud"_s,
            .left = u"SELECT * FROM Dud WHERE Dno<%1 ORDER BY Dno DESC,Hizuke DESC"_s,
            .right = u"SELECT * FROM Dud WHERE Dno>%1 ORDER BY Dno ,Hizuke DESC"_s};
}

QString SlipSql(const QString& number) {
    return u"SELECT * FROM Dud  WHERE Dno=%1 ORDER BY Eda"_s.arg(number);
}

}  // namespace

Slip_frm::Slip_frm() : DocumentForm(u"Slip_frm"_s, u"売上伝票"_s, Texts()) {
    layOutHead();
    layOutLines();
    addBar({{kSave, u"保存"_s, [this] { save(); }, Keeps},
            {kClear, u"画面クリア"_s, [this] { clear(); }},
            {kDelete, u"削除"_s, [this] { askAndRemove(); }, Removes}});
}

// ---- layout

void Slip_frm::layOutHead() {
    constexpr int kDateBytes = 10;
    FieldLayout head(*this);
    head.row(u"伝票番号"_s)
        .text(addBox(kNumber), kLongKeyBytes)
        .lookup(addLookup(kPickSlip, &PickSlip, kNumber));
    head.nextColumn();
    head.row(u"日付"_s).text(addBox(kDate), kDateBytes);
    head.nextColumn();
    addCode(head.row(u"得意先"_s), kDeal, {kPickDeal, u"Deal"_s, u"sNamae"_s, kNameBytes});
    body().addLayout(head.layout());
}

void Slip_frm::layOutLines() {
    constexpr int kSuuShown = 11;
    constexpr int kTankaShown = 14;
    constexpr int kGakuShown = 17;
    LineLayout lines(*this);
    for (const char16_t* caption : {u"コード", u"名称"})
        lines.head(QString::fromUtf16(caption));
    for (const char16_t* caption : {u"数量", u"単価", u"金額"})
        lines.head(QString::fromUtf16(caption), Qt::AlignRight);
    for (int line = 0; line < kLines; ++line) {
        const LineBoxes boxes = BoxesOf(line);
        const auto figure = [&](int column, int index, int shownBytes) {
            lines.cell(line, column).text(addAmount(index), kCurrencyBytes, shownBytes);
        };
        lines.cell(line, 0)
            .text(addBox(boxes.code), kLongKeyBytes)
            .lookup(addLookup(kPickItem + line, u"Hin"_s, boxes.code));
        lines.cell(line, 1).text(addBox(boxes.name, ImeMode::Hiragana), kNameBytes);
        figure(2, boxes.suu, kSuuShown);
        figure(3, boxes.tanka, kTankaShown);
        figure(4, boxes.gaku, kGakuShown);
    }
    body().addLayout(lines.layout());
    body().addWidget(new Label(u"消費税 : 売上の次の行 金額欄　* 税率　Enter"_s));
}

// ---- the slip on the screen

void Slip_frm::init() {
    today_ = Today();
    clear();
}

void Slip_frm::fromexe(std::int32_t& Dno) {
    openDocument(Dno);
}

void Slip_frm::showDefaults() {
    items_.fill(0);
    ebox(kDate).SetText(DateText(today_));
}

void Slip_frm::load() {
    Recordset rows = gDb->OpenRecordset(SlipSql(codeText()));
    if (rows.Eof()) {
        const QString typed = ebox(kNumber).Text();
        clear();
        ebox(kNumber).SetText(typed);
        return;
    }
    emptyFields();
    items_.fill(0);
    ebox(kNumber).SetText(NumStr(LongOf(rows[u"Dno"_s])));
    const Variant hizuke = rows[u"Hizuke"_s];
    ebox(kDate).SetText(DateText(IsDate(hizuke) ? CDate(hizuke) : Date()));
    ebox(kDeal).SetText(NumStr(LongOf(rows[u"Deal"_s])));
    showName(kDeal);
    for (int line = 0; line < kLines && !rows.Eof(); ++line, rows.MoveNext())
        showLine(line, rows);
}

void Slip_frm::showLine(int line, Recordset& row) {
    static const DisplayRule suuText = MaskedUnlessZero(u"#,###.0"_s);
    const LineBoxes boxes = BoxesOf(line);
    const std::int32_t code = LongOf(row[u"HinCode"_s]);
    items_[static_cast<std::size_t>(line)] = code;
    if (code != 0) ebox(boxes.code).SetText(NumStr(code));
    ebox(boxes.name).SetText(NullToEmpty(row[u"HinNamae"_s]));
    ebox(boxes.suu).SetText(suuText(MoneyOf(row[u"Suu"_s])));
    ebox(boxes.tanka).SetText(Yen(MoneyOf(row[u"Tanka"_s])));
    ebox(boxes.gaku).SetText(Yen(MoneyOf(row[u"Gaku"_s])));
}

// ---- Enter

bool Slip_frm::enter(int index) {
    switch (index) {
        case kNumber:
            load();
            break;
        case kDate:
            ebox(kDate).SetText(DateText(ParseDate(ebox(kDate).Text())));
            break;
        default:
            for (int line = 0; line < kLines; ++line)
                enterLine(line, index);
            break;
    }
    return true;
}

void Slip_frm::enterLine(int line, int index) {
    const LineBoxes boxes = BoxesOf(line);
    if (index == boxes.code) {
        takeItem(line);
    } else if (index == boxes.tanka) {
        putAmount(line, figure(boxes.suu) * figure(boxes.tanka));
    } else if (index == boxes.gaku && line > 0) {
        const QString typed = Trim(ebox(boxes.gaku).Text());
        if (!typed.startsWith(u'*')) return;
        const Currency rate = ToCurrency(typed.mid(1)) / 100;
        putAmount(line, figure(BoxesOf(line - 1).gaku) * rate);
    }
}

void Slip_frm::takeItem(int line) {
    const LineBoxes boxes = BoxesOf(line);
    const double code = NumVal(ebox(boxes.code).Text());
    double& shown = items_[static_cast<std::size_t>(line)];
    // A line of free text goes on having none; an emptied code takes its item along.
    if (code == 0.0 && shown == 0.0) return;
    shown = code;
    ebox(boxes.name).SetText(GetName(u"Hin"_s, code));
    ebox(boxes.tanka).SetText(Yen(GetHinTanka(code)));
}

void Slip_frm::putAmount(int line, Currency amount) {
    ebox(BoxesOf(line).gaku).SetText(Yen(Fix(amount)));
}

Currency Slip_frm::figure(int index) const {
    return ToCurrency(ebox(index).Text());
}

// ---- the slip in the store

bool Slip_frm::maySave(Date date) {
    if (NumVal(ebox(kNumber).Text()) == 0.0) return refuse(u"伝票番号は不正です。"_s, kNumber);
    if (!IsDateSet(date)) return refuse(u"日付が不正です。"_s, kDate);
    if (NumVal(ebox(kDeal).Text()) == 0.0) return refuse(u"得意先が選択されていません。"_s, kNumber);
    if (IntegerOf(FirstValue(SlipSql(codeText()), u"CreateAuto"_s)) == 1) {
        ShowAlert(u"自動で作成された伝票は修正できません。"_s);
        return false;
    }
    return true;
}

void Slip_frm::save() {
    const Date date = ParseStrictDate(ebox(kDate).Text());
    if (!maySave(date)) return;
    const BillingMonth month = DateToGetudo(CLng(NumVal(ebox(kDeal).Text())), date);
    removeRows();
    int eda = 0;
    for (int line = 0; line < kLines; ++line)
        if (isUsed(line)) storeLine(line, ++eda, date, month);
    clear();
    NoticeSaved();
}

bool Slip_frm::isUsed(int line) const {
    const LineBoxes boxes = BoxesOf(line);
    return NumVal(ebox(boxes.code).Text()) != 0.0 || HasText(ebox(boxes.name).Text());
}

void Slip_frm::storeLine(int line, int eda, Date date, BillingMonth month) {
    const LineBoxes boxes = BoxesOf(line);
    const auto number = [this](int index) { return KeepNumeric(ebox(index).Text()); };
    // The date goes in with its western year, whatever years the screen shows.
    gDb->Execute(
        u"INSERT INTO Dud(Dno, Eda, Hizuke, Deal, HinCode, HinNamae, Suu, Tanka, Gaku,"
        " Nendo, Getudo, CreateAuto) "
        " SELECT %1"
        "      , %2"
        "      , CDATE('%3') "
        "      , %4"
        "      , %5"
        "      ,'%6'"
        "      , %7"
        "      , %8"
        "      , %9"
        "      , %10"
        "      , %11"
        "      , 0"_s.arg(codeText(), NumStr(eda), Format(date, u"yyyy/mm/dd"_s),
                          NumStr(NumVal(ebox(kDeal).Text())), number(boxes.code),
                          EmptyToBlank(ebox(boxes.name).Text()), number(boxes.suu), number(boxes.tanka),
                          number(boxes.gaku), NumStr(month.nendo), NumStr(month.getudo)));
}

void Slip_frm::removeRows() {
    gDb->Execute(u"DELETE FROM Dud WHERE Dno=%1"_s.arg(codeText()));
}

void Slip_frm::askAndRemove() {
    if (!AskConfirm(u"この売上伝票を削除します。"_s, u"はい"_s, u"いいえ"_s)) return;
    removeRows();
    clear();
}

}  // namespace akarix
