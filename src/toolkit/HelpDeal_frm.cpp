#include "toolkit/HelpDeal_frm.h"

#include "platform/runtime/Literals.h"
#include "platform/runtime/Text.h"
#include "store/Lookup.h"
#include "toolkit/FieldBytes.h"
#include "toolkit/FieldWalk.h"
#include "values/NumStr.h"
#include "values/NumVal.h"

namespace akarix {

namespace {

const std::vector<ListColumn> kColumns = {{u"Haisou"_s, 800, {}, u"順路"_s, AlignRightCenter},
                                          {u"Code"_s, 800, {}, u"ｺｰﾄﾞ"_s, AlignRightCenter},
                                          {u"namae"_s, 3600, {}, u"得意先"_s},
                                          {u"kana"_s, 2600, {}, u"ﾌﾘｶﾞﾅ"_s},
                                          {u"Tel"_s, 1600, {}, u"TEL"_s}};
constexpr int kCodeColumn = 1;

}  // namespace

HelpDeal_frm::HelpDeal_frm() : LookupForm(u"HelpDeal_frm"_s) {
    FieldLayout search(*this);
    search.row(u"ﾌﾘｶﾞﾅ"_s).text(addBox(ebox, 0, ImeMode::KatakanaHalf), 30);
    search.row(u"名前"_s).text(addBox(ebox, 1, ImeMode::Hiragana), 40);
    sRte = &Named(new Label, u"sRte"_s);
    search.row(u"地区"_s)
        .text(addBox(ebox, 2, ImeMode::Off), kIntegerBytes)
        .lookup(F6.add(0, new Image))
        .name(*sRte, 30);
    QHBoxLayout* buttons = ButtonBar(*this, Btn, {u"さがす"_s});
    CommandButton& clear = Named(new CommandButton(u"クリア"_s), u"Command1"_s);
    JoinWalk(*this, clear);
    buttons->addWidget(&clear);
    layOut(&search, buttons);
    List().SetFixedRows(1);
    showColumns(kColumns);
    empty();

    const PressEnter press = wireKeys(ebox, [this](int index) { return enter(index); });
    wireLookup(F6(0), u"Rte"_s, u"ALL"_s, ebox(2), press, 2);
    on(&Btn(0), &CommandButton::Click, [this] { this->search(); });
    on(
        &clear, &CommandButton::Click,
        [this] {
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
    sRte->SetCaption(GetName(u"Rte"_s, NumVal(ebox(2).Text())));
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
    return u"SELECT Haisou,Code,namae,kana,Tel "_s + u" FROM  Deal "_s + u" WHERE Code>0"_s +
           LikeCondition(u"Kana"_s, ebox(0).Text()) + LikeCondition(u"Namae"_s, ebox(1).Text()) +
           (route.isEmpty() ? QString() : u" AND Rte="_s + NumStr(NumVal(route))) +
           u" ORDER BY Rte,haisou,Code"_s;
}

void HelpDeal_frm::pickPressedRow() {
    const int row = List().MouseRow();
    if (List().Rows() <= 1 || row < 0) return;
    const QString code = List().TextMatrix(row, kCodeColumn);
    if (NumVal(code) != 0.0) choose(code);
}

}  // namespace akarix
