#include "toolkit/HelpDeal_frm.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include "store/Lookup.h"
#include "toolkit/ControlMaker.h"
#include "toolkit/FieldWalk.h"
#include "values/NumStr.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {

namespace {

const std::vector<ListColumn> kColumns = {{QStringLiteral("Haisou"), 800, {}, QStringLiteral("順路")},
                                          {QStringLiteral("Code"), 800, {}, QStringLiteral("ｺｰﾄﾞ")},
                                          {QStringLiteral("namae"), 3600, {}, QStringLiteral("得意先")},
                                          {QStringLiteral("kana"), 2600, {}, QStringLiteral("ﾌﾘｶﾞﾅ")},
                                          {QStringLiteral("Tel"), 1600, {}, QStringLiteral("TEL")}};
constexpr int kCodeColumn = 1;

}  // namespace

HelpDeal_frm::HelpDeal_frm() : LookupForm(QStringLiteral("HelpDeal_frm")) {
    ControlMaker make(*this);
    auto* search = new QGridLayout;
    search->addWidget(&make.caption(QStringLiteral("ﾌﾘｶﾞﾅ")), 0, 0);
    search->addWidget(&make.box(ebox, 0, 30, ImeMode::KatakanaHalf), 0, 1, Qt::AlignLeft);
    search->addWidget(&make.caption(QStringLiteral("名前")), 1, 0);
    search->addWidget(&make.box(ebox, 1, 40, ImeMode::Hiragana), 1, 1, Qt::AlignLeft);
    auto* route = new QHBoxLayout;
    route->addWidget(&make.box(ebox, 2, 5, ImeMode::Off));
    route->addWidget(&make.lookup(F6, 0));
    sRte = &make.name(QStringLiteral("sRte"), 30);
    route->addWidget(sRte, 1);
    search->addWidget(&make.caption(QStringLiteral("地区")), 2, 0);
    search->addLayout(route, 2, 1);
    search->addWidget(&make.button(Btn, 0, QStringLiteral("さがす")), 0, 3);
    CommandButton& clear = make.button(QStringLiteral("Command1"), QStringLiteral("クリア"));
    search->addWidget(&clear, 1, 3);
    search->setColumnStretch(2, 1);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(search);
    layout->addWidget(&make.caption(QStringLiteral("クリックで決定")));
    layout->addWidget(&List(), 1);
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
