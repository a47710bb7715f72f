#include "toolkit/HelpDeal_frm.h"

#include "platform/runtime/Trim.h"
#include "store/Lookup.h"
#include "toolkit/FieldBytes.h"
#include "toolkit/FieldWalk.h"
#include "values/NumStr.h"
#include "values/NumVal.h"

namespace akarix {

namespace {

const std::vector<ListColumn> kColumns = {
    {QStringLiteral("Haisou"), 800, {}, QStringLiteral("順路"), AlignRightCenter},
    {QStringLiteral("Code"), 800, {}, QStringLiteral("ｺｰﾄﾞ"), AlignRightCenter},
    {QStringLiteral("namae"), 3600, {}, QStringLiteral("得意先")},
    {QStringLiteral("kana"), 2600, {}, QStringLiteral("ﾌﾘｶﾞﾅ")},
    {QStringLiteral("Tel"), 1600, {}, QStringLiteral("TEL")}};
constexpr int kCodeColumn = 1;

}  // namespace

HelpDeal_frm::HelpDeal_frm() : LookupForm(QStringLiteral("HelpDeal_frm")) {
    FieldLayout search(*this);
    search.row(QStringLiteral("ﾌﾘｶﾞﾅ")).text(addBox(ebox, 0, ImeMode::KatakanaHalf), 30);
    search.row(QStringLiteral("名前")).text(addBox(ebox, 1, ImeMode::Hiragana), 40);
    sRte = &Named(new Label, QStringLiteral("sRte"));
    search.row(QStringLiteral("地区"))
        .text(addBox(ebox, 2, ImeMode::Off), kIntegerBytes)
        .lookup(F6.add(0, new Image))
        .name(*sRte, 30);
    QHBoxLayout* buttons = ButtonBar(*this, Btn, {QStringLiteral("さがす")});
    CommandButton& clear = Named(new CommandButton(QStringLiteral("クリア")), QStringLiteral("Command1"));
    JoinWalk(*this, clear);
    buttons->addWidget(&clear);
    layOut(&search, buttons);
    List().SetFixedRows(1);
    showColumns(kColumns);
    empty();

    const PressEnter press = wireKeys(ebox, [this](int index) { return enter(index); });
    wireLookup(F6(0), QStringLiteral("Rte"), QStringLiteral("ALL"), ebox(2), press, 2);
    on(&Btn(0), &CommandButton::Click, [this] { this->search(); });
    on(&clear, &CommandButton::Click, [this] {
        ClearControls(*this);
        sRte->SetCaption({});
        empty();
    });
    on(&List(), &FlexGrid::Click, [this] { pickPressedRow(); });
}

void HelpDeal_frm::Start(const QString& table, const QString& mode) {
    table_ = table;
    mode_ = mode;
    ClearControls(*this);
    sRte->SetCaption({});
    SetFocus(&ebox(0));
    forgetChoice();
    empty();
}

bool HelpDeal_frm::enter(int index) {
    if (index != 2) return true;
    FitMaxLength(ebox(2));
    sRte->SetCaption(GetName(QStringLiteral("Rte"), NumVal(ebox(2).Text())));
    SetFocus(&Btn(0));
    return false;
}

void HelpDeal_frm::search() {
    empty();
    sql_ = searchSql();
    fill(sql_, kColumns);
}

QString HelpDeal_frm::searchSql() const {
    const QString route = Trim(ebox(2).Text());
    return QStringLiteral("SELECT Haisou,Code,namae,kana,Tel ") + QStringLiteral(" FROM  Deal ") +
           QStringLiteral(" WHERE Code>0") + LikeCondition(QStringLiteral("Kana"), ebox(0).Text()) +
           LikeCondition(QStringLiteral("Namae"), ebox(1).Text()) +
           (route.isEmpty() ? QString() : QStringLiteral(" AND Rte=") + NumStr(NumVal(route))) +
           QStringLiteral(" ORDER BY Rte,haisou,Code");
}

void HelpDeal_frm::pickPressedRow() {
    const int row = List().MouseRow();
    if (List().Rows() <= 1 || row < 0) return;
    const QString code = List().TextMatrix(row, kCodeColumn);
    if (NumVal(code) != 0.0) choose(code);
}

}  // namespace akarix
